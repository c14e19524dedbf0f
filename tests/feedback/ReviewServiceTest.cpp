#include "feedback/ReviewService.h"
#include "platform/toolkit/UINavigationController.h"
#include "platform/toolkit/UIWindowScene.h"
#include "tests/support/PlainStoryboard.h"
#include "tests/support/RecordingDevice.h"

#include <gtest/gtest.h>

namespace {

const QString key = "ReviewService.lastRequest";

// Tests run in New York, where clocks go forward on March 14th and back on November 7th of 2021.
QDateTime local(int month, int day, const QTime& time = QTime(20, 0))
{
    return QDateTime(QDate(2021, month, day), time).toUTC();
}

class Scene : public UIWindowScene
{
public:
    explicit Scene(ActivationState state)
        : state(state)
    {
    }

    [[nodiscard]] ActivationState activationState() const override { return state; }
    [[nodiscard]] UINavigationController& navigationController() override { return navigation; }

private:
    ActivationState state;
    PlainStoryboard storyboard;
    UINavigationController navigation{storyboard};
};

class ReviewServiceTest : public testing::Test
{
protected:
    // A service as a new start of the program makes it.
    static ReviewService at(const QDateTime& now)
    {
        return ReviewService([now] { return now; });
    }

    [[nodiscard]] std::vector<UIWindowScene*>& asked() const { return device.reviewPromptTwin->asked; }

    RecordingDevice device;
};

TEST_F(ReviewServiceTest, SevenDaysOfTheCalendarMustBeOver)
{
    struct Case
    {
        QDateTime last;
        QDateTime weekLater;
    };
    constexpr qint64 week = qint64{7} * 24 * 3600;
    const std::vector<Case> cases{
        {local(6, 1), local(6, 8)},
        {local(3, 10), local(3, 17)},
        {local(11, 3), local(11, 10)},
    };
    EXPECT_EQ(cases[1].last.secsTo(cases[1].weekLater), week - 3600);
    EXPECT_EQ(cases[2].last.secsTo(cases[2].weekLater), week + 3600);
    for (const Case& example : cases) {
        ReviewService(nullptr).setLastRequest(example.last);
        EXPECT_FALSE(at(example.weekLater).canRequestReview()) << qPrintable(example.weekLater.toString());
        EXPECT_TRUE(at(example.weekLater.addSecs(1)).canRequestReview());
        EXPECT_FALSE(at(example.last.addSecs(-1)).canRequestReview()) << "a clock set back";
    }
}

TEST_F(ReviewServiceTest, AsksInTheFirstSceneInTheForegroundWhereTheSystemKnowsScenes)
{
    using State = UIWindowScene::ActivationState;
    const auto askedIn = [&](double version) {
        device.systemVersion = version;
        UserDefaults::standard().setObject("never", key);
        asked().clear();
        ReviewService().requestReview();
        return asked();
    };
    using Scenes = std::vector<UIWindowScene*>;
    EXPECT_EQ(askedIn(14), Scenes{nullptr});
    const Scene behind(State::ForegroundInactive);
    EXPECT_EQ(askedIn(14), Scenes{nullptr});
    Scene front(State::ForegroundActive);
    const Scene other(State::ForegroundActive);
    EXPECT_EQ(askedIn(14), Scenes{&front});
    EXPECT_EQ(askedIn(13.9), Scenes{nullptr});
}

TEST_F(ReviewServiceTest, CountsWhatIsNoDateAsNeverAndWritesNoAbsentDate)
{
    ReviewService service = at(local(6, 1));
    service.defaults.setObject("yesterday", key);
    EXPECT_EQ(service.lastRequest(), std::nullopt);
    EXPECT_TRUE(service.canRequestReview());
    service.setLastRequest(local(5, 31));
    service.setLastRequest(std::nullopt);
    EXPECT_EQ(service.lastRequest(), local(5, 31));
}

} // namespace
