// Work that the window does not wait for.
#pragma once

#include "Platform/Foundation/Dispatch.h"

#include <QPointer>

#include <functional>

namespace korvane {

// Runs the work on a pool thread, and then what it returns on the main one, unless the owner is gone by then. The work
// itself must not touch the owner.
inline void inBackground(QObject *owner, std::function<std::function<void()>()> work) {
    dispatchGlobal([owner = QPointer<QObject>(owner), work = std::move(work)] {
        dispatchMain([owner, answer = work()] {
            if (owner) answer();
        });
    });
}

} // namespace korvane
