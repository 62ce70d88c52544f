// The start of a child program: all that lies around the fork.
#pragma once

#include "Platform/Foundation/FileDescriptor.h"

#include <QByteArray>
#include <QByteArrayList>

#include <csignal>

namespace korvane {

// A child that runs, and what poll() can wait for of it.
struct LaunchedChild {
    int error = 0; // the errno value that says why there is no child
    pid_t process = -1;
    FileDescriptor end;    // readable once it has ended
    FileDescriptor output; // our ends of its pipes; invalid where the child writes elsewhere
    FileDescriptor errors;
};

// What a child is started with.
struct ChildLaunch {
    QByteArray path;
    QByteArrayList arguments;
    QByteArrayList environment; // NAME=VALUE, beside or in place of this process's own variables
    int standardInput = -1;     // stays the caller's; -1: /dev/null
    int standardOutput = -1;    // likewise
    bool readsOutput = false;   // the child writes into a pipe instead
    int niceness = 0;

    // Returns once the program runs; waitForEnd() must follow. It is killed when this process ends, however that
    // happens. Thread: any.
    LaunchedChild start() const;
};

// Blocks until the child has ended.
siginfo_t waitForEnd(pid_t process);

} // namespace korvane
