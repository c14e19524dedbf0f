#include "tests/walk/Step.h"

#include "tests/walk/Errands.h"

namespace {

// How often a kind comes, in the order of the kinds.
constexpr double weights[Step::kinds] = {30, 3,  12, 6, 2, 2, 1, 2, 2, 3, 3, 1,
                                         2,  16, 10, 2, 1, 3, 4, 2, 0, 2, 3, 1};

// One act in so many is an errand, which makes about two thirds of all steps.
constexpr unsigned actsAnErrand = 6;
// About what a walk has time for: successive seeds go on with the errands where the one before ended.
constexpr unsigned errandsAWalk = 9;

std::vector<double> weightsOf(std::mt19937& random)
{
    std::vector<double> chosen(std::begin(weights), std::end(weights));
    for (double& weight : chosen)
        if (random() % 4 == 0)
            weight = 0;
    chosen[static_cast<std::size_t>(Step::Kind::Tap)] = weights[0];
    chosen[static_cast<std::size_t>(Step::Kind::AnswerDialogs)] = 4;
    return chosen;
}

} // namespace

std::vector<Step> randomSteps(unsigned seed, int count)
{
    std::mt19937 random(seed);
    const std::vector<double> chosen = weightsOf(random);
    std::discrete_distribution<int> kind(chosen.begin(), chosen.end());
    std::vector<Step> steps;
    unsigned errand = seed * errandsAWalk;
    while (steps.size() < static_cast<std::size_t>(count)) {
        if (random() % actsAnErrand == 0) {
            const std::vector<Step> next = errandSteps(errand++, random);
            steps.insert(steps.end(), next.begin(), next.end());
            continue;
        }
        const auto next = static_cast<Step::Kind>(kind(random));
        const auto first = static_cast<unsigned>(random() % 1000);
        steps.push_back({next, first, static_cast<unsigned>(random() % 1000)});
    }
    steps.resize(static_cast<std::size_t>(count));
    return steps;
}

QString textOf(const std::vector<Step>& steps)
{
    QStringList words;
    for (const Step& step : steps)
        words.append(QString("%1.%2.%3").arg(static_cast<int>(step.kind)).arg(step.first).arg(step.second));
    return words.join(' ');
}

std::vector<Step> stepsFrom(const QString& text)
{
    std::vector<Step> steps;
    for (const QString& word : text.split(' ', Qt::SkipEmptyParts)) {
        const QStringList parts = word.split('.');
        const int kind = parts.value(0).toInt();
        if (kind >= 0 && kind < Step::kinds)
            steps.push_back(
                {static_cast<Step::Kind>(kind), parts.value(1).toUInt(), parts.value(2).toUInt()});
    }
    return steps;
}
