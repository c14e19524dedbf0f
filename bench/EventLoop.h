#pragma once

#include <QEventLoop>
#include <QTimer>

// Lets the main queue work until `isDone` holds.
template <typename Condition>
void runUntil(const Condition& isDone)
{
    QEventLoop loop;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &loop, [&] {
        if (isDone())
            loop.quit();
    });
    look.start(1);
    loop.exec();
}
