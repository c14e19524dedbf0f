#pragma once

class QWidget;
class QWindow;

// Keeps `dialog` above `window`, which no widget knows of; a null one changes nothing.
void stackAbove(QWidget& dialog, QWindow* window);
