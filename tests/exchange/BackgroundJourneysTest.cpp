#include "tests/exchange/BackgroundJourneys.h"

#include "tests/support/Catalogue.h"
#include "tests/support/HeldPools.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

namespace {

template <typename Type>
std::unique_ptr<Journey> make(RecordingDevice& device)
{
    return std::make_unique<Type>(device);
}

struct NamedJourney
{
    const char* name;
    std::unique_ptr<Journey> (*make)(RecordingDevice&);
};

const NamedJourney journeys[] = {{"Export", make<ExportJourney>},
                                 {"Report", make<ReportJourney>},
                                 {"Print", make<PrintJourney>},
                                 {"Mail", make<MailJourney>}};

// The queue and the pools of the program itself, remembered before the fixture puts its own in their place.
struct OwnThreads
{
    DispatchQueue& main = DispatchQueue::main();
    Pool& allCores = Pool::allCores();
    Pool& inOrder = Pool::inOrder();
};

class BackgroundJourneysTest : private OwnThreads,
                               public CatalogueTest,
                               public testing::WithParamInterface<NamedJourney>
{
protected:
    void SetUp() override
    {
        // More than the export has under way at a time.
        for (int number = 0; number < 600; ++number)
            context().insert<Movies>()->setMovieName(QString::number(number));
        for (const char* name : {"Ran", "Glory", "Patton"})
            given({.name = name, .genre = "War", .rating = "PG"});
    }

    // Runs whatever waits, `pools` in their order, until the journey is at its end.
    QString travelled(HeldPools* pools = nullptr)
    {
        const auto journey = GetParam().make(device);
        QDeadlineTimer deadline(60000);
        while (!journey->goOn()) {
            queue.advance(std::chrono::milliseconds(1));
            if (pools != nullptr)
                pools->runOne();
            QCoreApplication::processEvents();
            if (deadline.hasExpired())
                return QStringLiteral("no end");
        }
        return journey->outcome();
    }

    QString travelledOnOwnThreads()
    {
        const DispatchQueue::MainScope mainScope(main);
        const Pool::Scope poolScope(allCores, inOrder);
        return travelled();
    }
};

TEST_P(BackgroundJourneysTest, EndAlikeInWhateverOrderThreadsWork)
{
    using Order = HeldPools::Order;
    const QString expected = travelled();
    ASSERT_NE(expected, "no end");
    EXPECT_EQ(travelledOnOwnThreads(), expected);
    const auto check = [&](Order order, unsigned seed) {
        HeldPools pools(order, seed);
        EXPECT_EQ(travelled(&pools), expected) << int(order) << " seed " << seed;
    };
    check(Order::AsStarted, 0);
    check(Order::Reversed, 0);
    for (unsigned seed = 1; seed <= 20; ++seed)
        check(Order::Shuffled, seed);
}

TEST_P(BackgroundJourneysTest, AreLeftAtAnyTime)
{
    for (int tasksBefore = 0; tasksBefore < 6; ++tasksBefore) {
        HeldPools pools(HeldPools::Order::AsStarted);
        const auto journey = GetParam().make(device);
        for (int task = 0; task < tasksBefore && !journey->goOn(); ++task) {
            queue.advance({});
            pools.runOne();
        }
        journey->leave();
        const auto saved = device.savedDocuments().size();
        do
            queue.advance(std::chrono::seconds(2));
        while (pools.runOne());
        EXPECT_EQ(device.savedDocuments().size(), saved) << "nobody is there to go on";
    }
}

INSTANTIATE_TEST_SUITE_P(All, BackgroundJourneysTest, testing::ValuesIn(journeys),
                         [](const auto& each) { return std::string(each.param.name); });

} // namespace
