#pragma once

#include <QThread>

// A thread that does one thing and is waited for when it is destroyed.
class BackgroundThread : public QThread
{
public:
    BackgroundThread(std::function<void()> work, QObject& owner)
        : QThread(&owner)
        , work(std::move(work))
    {
    }
    ~BackgroundThread() override { wait(); }

protected:
    void run() override { work(); }

private:
    std::function<void()> work;
};

// Does `work` on a thread of its own and hands its result to `then` on the thread of `owner`, later. An owner
// that is destroyed waits for the work, so it must be known to end; `then` isn't called any more.
template <typename Work, typename Then>
void inBackground(QObject& owner, Work work, Then then)
{
    auto result = std::make_shared<std::optional<decltype(work())>>();
    auto* thread = new BackgroundThread([result, work = std::move(work)] { result->emplace(work()); }, owner);
    QObject::connect(thread, &QThread::finished, thread, [thread, result, then = std::move(then)] {
        thread->deleteLater();
        then(**result);
    });
    thread->start();
}
