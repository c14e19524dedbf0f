#pragma once

#include "exchange/ExchangeWriter.h"
#include "model/Movies.h"

#include <map>

// Writes the exchange text of many movies without keeping the user waiting: they are read on the main queue,
// some at a time, and put into text on the other cores.
class ExchangeBuilder : public QObject
{
    Q_OBJECT

public:
    using MovieRecords = std::vector<std::shared_ptr<Movies>>;

    using QObject::QObject;

    // Writes `movies` in their order. Calls `written` for each record, in order, and then `finished` with the
    // whole text or the first error, all on the main queue and never before this returns. A run that goes on
    // is given up.
    void start(MovieRecords movies, std::function<void()> written,
               std::function<void(const Result<QString>&)> finished);

private:
    using Records = Result<QString>;

    void readSome();
    void take(int run, std::size_t batch, qsizetype movies, const Records& records);
    void finish(const Result<QString>& result);

    // Counts starts, so that what comes in from a run given up is known.
    int currentRun = 0;
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
