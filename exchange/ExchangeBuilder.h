#pragma once

#include "exchange/ExchangeWriter.h"
#include "model/Movies.h"

#include <QFuture>
#include <map>

// Writes the exchange text of many movies without keeping the user waiting: they are read on the main queue,
// some at a time, and put into text on the other cores.
class ExchangeBuilder : public QObject
{
    Q_OBJECT

public:
    using MovieRecords = std::vector<std::shared_ptr<Movies>>;

    using QObject::QObject;
    ~ExchangeBuilder() override;

    // Writes `movies` in their order. Calls `written` for each record, in order, and then `finished` with the
    // whole text or the first error, all on the main queue and never before this returns. Cancels
    // the run before.
    void start(MovieRecords movies, std::function<void()> written,
               std::function<void(const Result<QString>&)> finished);

private:
    using Records = Result<QString>;

    void cancel();
    void readSome();
    void write(std::vector<ExchangeValues> batch);
    void take(std::size_t batch, qsizetype movies, const Records& records);
    void finish(const Result<QString>& result);

    // By the number of their batch.
    std::map<std::size_t, QFuture<Records>> underWay;
    MovieRecords source;
    std::size_t nextMovie = 0;
    std::size_t nextBatch = 0;
    std::size_t nextTaken = 0;
    struct Batch
    {
        qsizetype movies;
        QString text;
    };
    // Batches that are ready before their turn.
    std::map<std::size_t, Batch> early;
    QString text;
    std::function<void()> recordWritten;
    std::function<void(const Result<QString>&)> done;
};
