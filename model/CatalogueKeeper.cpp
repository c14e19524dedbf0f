#include "model/CatalogueKeeper.h"

#include "platform/foundation/DispatchQueue.h"
#include "platform/store/SaveProblem.h"

#include <QDeadlineTimer>
#include <QPointer>
#include <thread>

namespace {

using namespace std::chrono_literals;

constexpr auto betweenAttempts = 3s;

QString sentenceFor(SaveProblem problem)
{
    switch (problem) {
    case SaveProblem::DiskFull:
        return QStringLiteral("Not saved yet: the disk is full. Marrowvale keeps trying.");
    case SaveProblem::InUse:
        return QStringLiteral("Not saved yet: another program uses the catalogue. Marrowvale keeps trying.");
    case SaveProblem::ReadOnly:
        return QStringLiteral("Not saved yet: the catalogue can't be written to. Marrowvale keeps trying.");
    case SaveProblem::Replaced:
        return QStringLiteral("Not saved: the catalogue's file was replaced or removed.");
    case SaveProblem::Broken:
        break;
    }
    return QStringLiteral("Not saved yet: the disk reports an error. Marrowvale keeps trying.");
}

QString noticeOf(const NSError& error, std::size_t changes)
{
    const QString sentence = sentenceFor(saveProblemOf(error));
    return changes < 2 ? sentence : sentence + QStringLiteral(" %1 changes wait.").arg(changes);
}

} // namespace

void CatalogueKeeper::watch(NSManagedObjectContext& context)
{
    watched = &context;
    context.addSaveHandler([keeper = QPointer(this)](const Status& saved) {
        if (keeper)
            keeper->note(saved);
    });
}

QStringList CatalogueKeeper::refusedChanges() const
{
    return refused == 0 ? QStringList() : watched->describeChanges();
}

void CatalogueKeeper::tryAgain()
{
    if (refused > 0)
        // Ignored: the save handler is called with the outcome.
        (void)watched->trySave().ok();
}

void CatalogueKeeper::insist(std::chrono::milliseconds longest)
{
    constexpr auto pause = 100ms;
    const QDeadlineTimer end(longest);
    for (tryAgain(); refused > 0 && !end.hasExpired(); tryAgain())
        std::this_thread::sleep_for(pause);
}

void CatalogueKeeper::note(const Status& saved)
{
    refused = saved ? 0 : watched->changeCount();
    text = saved ? QString() : noticeOf(saved.error(), refused);
    Q_EMIT changed();
    if (!saved)
        waitAndTry();
}

void CatalogueKeeper::waitAndTry()
{
    if (std::exchange(isWaiting, true))
        return;
    DispatchQueue::main().asyncAfter(betweenAttempts, [keeper = QPointer(this)] {
        if (!keeper)
            return;
        keeper->isWaiting = false;
        keeper->tryAgain();
    });
}
