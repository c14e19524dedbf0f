#include "exchange/ExchangeBuilder.h"

#include "platform/foundation/Background.h"

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

ExchangeBuilder::~ExchangeBuilder()
{
    cancel();
}

void ExchangeBuilder::start(MovieRecords movies, std::function<void()> written,
                            std::function<void(const Result<QString>&)> finished)
{
    cancel();
    source = std::move(movies);
    nextMovie = nextBatch = nextTaken = 0;
    early.clear();
    text = exchangeOpening();
    recordWritten = std::move(written);
    done = std::move(finished);
    // Reading begins once an empty batch is back, so that the caller isn't kept waiting.
    write({});
}

void ExchangeBuilder::cancel()
{
    for (auto& [number, batch] : underWay)
        batch.cancel();
    underWay.clear();
}

void ExchangeBuilder::readSome()
{
    while (nextMovie < source.size() && nextBatch - nextTaken < mostBatchesUnderWay()) {
        const std::size_t end = std::min(nextMovie + moviesPerBatch, source.size());
        std::vector<ExchangeValues> batch;
        for (; nextMovie < end; ++nextMovie)
            batch.push_back(exchangeValues(*source[nextMovie]));
        write(std::move(batch));
    }
    if (nextTaken == nextBatch)
        finish(text);
}

void ExchangeBuilder::write(std::vector<ExchangeValues> batch)
{
    const auto movies = static_cast<qsizetype>(batch.size());
    const std::size_t number = nextBatch++;
    underWay[number] =
        background(Pool::allCores(), [batch = std::move(batch)] {
            return recordsOf(batch);
        }).then(*this, [this, number, movies](const Records& records) { take(number, movies, records); });
}

void ExchangeBuilder::take(std::size_t batch, qsizetype movies, const Records& records)
{
    underWay.erase(batch);
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
    cancel();
    // The handler may start the next run.
    const auto handler = std::exchange(done, nullptr);
    handler(result);
}
