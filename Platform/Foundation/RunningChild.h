// A child that runs: its end, its words, and the wish to stop it.
#pragma once

#include "Platform/Foundation/ChildLaunch.h"
#include "Platform/Foundation/ChildProcess.h"

namespace korvane {

class RunningChild {
public:
    // How long the child may run, and who is told meanwhile; as ChildProcess takes them.
    struct Terms {
        std::optional<std::chrono::milliseconds> timeLimit;
        std::stop_token cancellation;
        std::function<void(const QByteArray &piece)> outputHandler;
        std::chrono::milliseconds watchInterval;
        std::function<bool()> goesOn;
    };

    RunningChild(LaunchedChild child, Terms terms);

    // Blocks until the child has ended, by itself or under the terms. Once.
    ChildProcess::Result wait();

private:
    using Clock = std::chrono::steady_clock;

    ChildProcess::Ending _watch();
    int _patience(Clock::time_point deadline) const;
    bool _readErrors();
    bool _readOutput();

    const LaunchedChild _child;
    const Terms _terms;
    const FileDescriptor _wish; // an eventfd
    QByteArray _text;
};

} // namespace korvane
