#pragma once

#include "tests/support/FaultFileSystem.h"
#include "tests/sweep/SweepJourney.h"

#include <string>

inline const QString sweptDirectory = QStringLiteral("/swept");

// Of so many operations one is swept: the sanitizers make everything slower.
#ifdef __SANITIZE_ADDRESS__
constexpr int sweepStride = 5;
#else
constexpr int sweepStride = 1;
#endif

// What may be found in a store after an interruption: the state of a save that was begun, from the last that
// was acknowledged on.
class SweepHistory
{
public:
    explicit SweepHistory(const SweptCatalogue& start)
        : states{start.lines()}
    {
    }
    // Takes down what the journey saves, and calls `handler` after each change.
    void follow(
        SweepJourney& journey, const std::function<void()>& handler = [] {});

    [[nodiscard]] std::size_t begun() const { return states.size() - 1; }
    [[nodiscard]] std::size_t acknowledged() const { return lastAcknowledged; }
    // The last that is sure to survive the loss of power.
    [[nodiscard]] std::size_t promised() const { return lastPromised; }
    // The number of the save, from `from` to `to`, whose state `found` is, if any.
    [[nodiscard]] std::optional<std::size_t> find(const QByteArrayList& found, std::size_t from,
                                                  std::size_t to) const;

private:
    std::vector<QByteArrayList> states;
    std::size_t lastAcknowledged = 0;
    std::size_t lastPromised = 0;
};

// What a stage of the journey starts from.
struct SweepStart
{
    SweepJourney::Stage stage;
    FaultImages images;
    SweptCatalogue catalogue;
};
// For each stage, what the stages before it leave when nothing fails.
[[nodiscard]] std::vector<SweepStart> sweepStarts(FaultFileSystem& system);

// Opens the store on a disk that holds `images`, as the program does, and reads it.
[[nodiscard]] Result<QByteArrayList> contentOf(FaultFileSystem& system, const FaultImages& images);

// The figures of a sweep, printed at its end.
struct SweepFigures
{
    std::string name;
    int interruptions = 0;
    int states = 0;
    // The store could not be opened or read.
    int refusals = 0;
    // A save that was to be there was not, or a state that never was.
    int losses = 0;
    // Acknowledged without a promise for the loss of power, and really gone.
    int unsyncedLosses = 0;

    ~SweepFigures();
};
