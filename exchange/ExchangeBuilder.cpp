#include "exchange/ExchangeBuilder.h"

#include "platform/foundation/DispatchQueue.h"

#include <QPointer>
#include <QThread>

namespace {

// Enough to be worth handing over, few enough for the window to stay alive.
constexpr std::size_t moviesPerBatch = 16;

// Bounds the covers that wait in memory.
std::size_t mostBatchesUnderWay()
{
    return static_cast<std::size_t>(std::max(1, QThread::idealThreadCount())) * 4;
}

Result<QString> recordsOf(const std::vector<ExchangeValues>& batch)
{
    QString text;
    for (const ExchangeValues& values : batch) {
        const Result<QString> record = exchangeRecord(values);
        if (!record)
            return record.error();
        text += record.value();
    }
    return text;
}

} // namespace

void ExchangeBuilder::start(MovieRecords movies, std::function<void()> written,
                            std::function<void(const Result<QString>&)> finished)
{
    ++currentRun;
    source = std::move(movies);
    nextMovie = nextBatch = nextTaken = 0;
    early.clear();
    text = exchangeOpening();
    recordWritten = std::move(written);
    done = std::move(finished);
    DispatchQueue::main().async([builder = QPointer(this), run = currentRun] {
        if (builder && builder->currentRun == run)
            builder->readSome();
    });
}

void ExchangeBuilder::readSome()
{
    while (nextMovie < source.size() && nextBatch - nextTaken < mostBatchesUnderWay()) {
        const std::size_t end = std::min(nextMovie + moviesPerBatch, source.size());
        std::vector<ExchangeValues> batch;
        for (; nextMovie < end; ++nextMovie)
            batch.push_back(exchangeValues(*source[nextMovie]));
        DispatchQueue::global().async(
            [builder = QPointer(this), run = currentRun, number = nextBatch, batch = std::move(batch)] {
                const auto movies = static_cast<qsizetype>(batch.size());
                DispatchQueue::main().async([builder, run, number, movies, records = recordsOf(batch)] {
                    if (builder)
                        builder->take(run, number, movies, records);
                });
            });
        ++nextBatch;
    }
    if (nextTaken == nextBatch)
        finish(text);
}

void ExchangeBuilder::take(int run, std::size_t batch, qsizetype movies, const Records& records)
{
    if (run != currentRun)
        return;
    if (!records) {
        finish(records.error());
        return;
    }
    early.insert({batch, {movies, records.value()}});
    for (auto next = early.find(nextTaken); next != early.end(); next = early.find(nextTaken)) {
        text += next->second.text;
        for (qsizetype record = 0; record < next->second.movies; ++record)
            recordWritten();
        early.erase(next);
        ++nextTaken;
    }
    readSome();
}

void ExchangeBuilder::finish(const Result<QString>& result)
{
    ++currentRun;
    done(result);
}
