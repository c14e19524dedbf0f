#pragma once

// An assistive technology in the same process. It asks about the object of every event whatever a screen
// reader may ask, as soon as the event is sent, even while the object is being destroyed. Platforms with a
// bridge to the desktop's screen readers, such as xcb, don't use it; `offscreen` does.
namespace AccessibleListener {

// Listens until the process ends. The caller must have no window yet, because Qt looks for listeners once,
// at the first event. Calling it again does nothing.
void start();
// The number of events since the start.
int eventCount();

} // namespace AccessibleListener
