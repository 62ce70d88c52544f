// Waiting for something that happens on the event loop or on another thread.
#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QThread>

#include <functional>

namespace korvane::test {

// Runs the main thread's event loop until the predicate holds; false if that takes longer than the time-out.
inline bool waitFor(const std::function<bool()> &predicate, int timeoutMilliseconds = 20'000) {
    QElapsedTimer timer;
    timer.start();
    while (!predicate()) {
        if (timer.elapsed() > timeoutMilliseconds) return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        QThread::msleep(1);
    }
    return true;
}

} // namespace korvane::test
