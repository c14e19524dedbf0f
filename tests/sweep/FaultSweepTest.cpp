#include "tests/support/FaultReplay.h"
#include "tests/sweep/SweepRun.h"

#include <gtest/gtest.h>

namespace {

struct FaultCase
{
    const char* name;
    Fault fault;
    // Every so many operations.
    int stride = 1;
    // The program ends while everything fails, rather than go on afterwards.
    bool endsFailing = false;
};

const FaultCase faultCases[] = {
    {"an error", Fault::Error},
    {"errors for good", Fault::ErrorForGood, 1, true},
    {"a full disk", Fault::DiskFull},
    {"a full disk for good", Fault::DiskFullForGood},
    {"a short write", Fault::ShortWrite},
    {"a failed sync", Fault::FailedSync},
    {"a failed open", Fault::FailedOpen},
    {"no memory once", Fault::NoMemory, 41},
    {"no memory for good", Fault::NoMemoryForGood, 41},
};

class FaultSweep : public testing::TestWithParam<FaultCase>
{
protected:
    // Takes a stage of the journey, with the fault at the operation `number`. Returns whether it struck.
    bool takeStage(const SweepStart& start, int number);
    void settle(SweepJourney& journey, const SweepStart& start);
    // Counts the state of the disk `images` as good if it is that of a save from `from` on.
    void check(const FaultImages& images, std::size_t from, const char* when);
    void expect(bool isGood, int& count, const std::string& what);

    FaultFileSystem system;
    SweepHistory history{{}};
    SweepFigures figures{GetParam().name};
    std::string place;
};

void FaultSweep::expect(bool isGood, int& count, const std::string& what)
{
    ++figures.states;
    if (isGood)
        return;
    ++count;
    ADD_FAILURE() << place << ": " << what;
}

void FaultSweep::check(const FaultImages& images, std::size_t from, const char* when)
{
    const auto found = contentOf(system, images);
    if (!found)
        expect(false, figures.refusals, found.error().debugText().toStdString());
    else
        expect(history.find(found.value(), from, history.begun()).has_value(), figures.losses, when);
}

// All that was ever changed gets saved, is seen, and survives the loss of power and the end of the program.
void FaultSweep::settle(SweepJourney& journey, const SweepStart& start)
{
    journey.settle();
    const auto seen = linesOf(*journey.context());
    expect(seen && seen.value() == journey.catalogue.lines(), figures.losses,
           "the list shows something else");
    FaultReplay replay(start.images);
    for (const auto& operation : system.disk.operations())
        replay.apply(operation);
    journey.close();
    const auto closed = system.disk.images();
    check(replay.onlySynced(), history.begun(), "not what was saved, after the loss of power");
    check(closed, history.begun(), "not what was saved, after the end");
}

bool FaultSweep::takeStage(const SweepStart& start, int number)
{
    system.insert(start.images);
    SweepJourney journey(sweptDirectory);
    journey.catalogue = start.catalogue;
    history = SweepHistory(start.catalogue);
    history.follow(journey);
    journey.onFailure = [this] { system.plan.disarm(); };
    system.plan.arm(GetParam().fault, number);
    try {
        (journey.*start.stage.run)();
        if (GetParam().endsFailing) {
            journey.close();
            check(system.disk.images(), history.acknowledged(),
                  "not what was saved, after failing to the end");
        } else {
            settle(journey, start);
        }
    } catch (const std::exception& failure) {
        expect(false, figures.refusals, failure.what());
    }
    ++figures.interruptions;
    return system.plan.struck();
}

TEST_P(FaultSweep, losesNothing)
{
    for (const auto& start : sweepStarts(system)) {
        for (int number = 0;; number += GetParam().stride * sweepStride) {
            place = std::string(start.stage.name) + ", operation " + std::to_string(number);
            if (!takeStage(start, number))
                break;
            if (HasFailure() && figures.losses + figures.refusals > 20)
                return;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Faults, FaultSweep, testing::ValuesIn(faultCases), [](const auto& tested) {
    return QString::fromLatin1(tested.param.name).replace(' ', '_').toStdString();
});

} // namespace
