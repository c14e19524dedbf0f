#pragma once

// What the toolkit and the layouts warn of while the program runs: a warning is a fault of the program.
namespace Complaints {

// From now on warnings are kept beside being written.
void listen();
// A TourError that tells them, if there are any.
void endTourIfAny();

} // namespace Complaints
