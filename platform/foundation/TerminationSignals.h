#pragma once

#include <functional>

class QCoreApplication;

// Lets the first signal that asks the program to terminate, be it a log-out, a lost terminal or Ctrl+C, end
// the event loop of `application`, as closing the last window does: what the program keeps for as long as it
// runs goes with it. A second one of its kind ends the program at once. A signal that is ignored stays so.
// Called once, from the main thread.
//
// `beforeTheEnd` is called first, if given. Windows are not asked whether they may close.
void quitAtTerminationSignals(QCoreApplication& application, std::function<void()> beforeTheEnd = nullptr);
