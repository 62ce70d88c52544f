// A child program, run to its end.
#pragma once

#include "Platform/Foundation/NSError.h"

#include <QByteArray>
#include <QByteArrayList>

#include <chrono>
#include <functional>
#include <optional>
#include <stop_token>

namespace korvane {

// What to run and run() to do so. The child sees the three standard descriptors and no other, default signal handling,
// and is killed when this process ends, however that happens. Thread: any; several children may run at once.
class ChildProcess {
public:
    enum Ending { Exited, Signalled, TimedOut, Cancelled }; // the last two were killed by us

    struct Result {
        Ending ending = Exited;
        int status = 0;           // the exit status of Exited, the signal of the others
        QByteArray standardError; // what the child wrote there; of much text the last 16 KiB

        bool succeeded() const { return ending == Exited && status == 0; }
        // "exit status 1: TEXT", "stopped by signal 9", "took too long", with the last line of standardError. For
        // errors and logs.
        QString description() const;
    };

    // program is an absolute path, or a name that pathOfProgram() finds.
    ChildProcess(QByteArray program, QByteArrayList arguments)
        : _program(std::move(program)), _arguments(std::move(arguments)) {}

    // Descriptors stay the caller's and are shared with the child, position included. Without one: /dev/null.
    void setStandardInput(int descriptor) { _standardInput = descriptor; }
    void setStandardOutput(int descriptor) { _standardOutput = descriptor; }
    // In place of a descriptor: gets what the child writes on standard output, piece by piece as it comes, on the
    // thread of run(); all of it before run() returns.
    void setOutputHandler(std::function<void(const QByteArray &piece)> handler) { _outputHandler = std::move(handler); }
    // Sets a variable in the child's environment, which is otherwise this process's own.
    void setEnvironmentVariable(const QByteArray &name, const QByteArray &value);
    // Without one the child may take as long as it likes.
    void setTimeLimit(std::chrono::milliseconds limit) { _timeLimit = limit; }
    // Asked after each piece of output and at least once an interval, on the thread of run(); false kills the child,
    // which counts as TimedOut.
    void setWatch(std::chrono::milliseconds interval, std::function<bool()> goesOn) {
        _watchInterval = interval;
        _goesOn = std::move(goesOn);
    }
    // Lowers the child's claim on the processor, by 1 to 19.
    void setNiceness(int niceness) { _niceness = niceness; }
    // A request to stop kills the child at once.
    void setCancellation(std::stop_token token) { _cancellation = std::move(token); }

    // Blocks the calling thread until the child has ended. Null, with the error placed, if it could not be started.
    std::optional<Result> run(std::optional<NSError> *error = nullptr) const;

private:
    QByteArray _program;
    QByteArrayList _arguments;
    QByteArrayList _environment; // NAME=VALUE
    int _standardInput = -1;
    int _standardOutput = -1;
    int _niceness = 0;
    std::function<void(const QByteArray &piece)> _outputHandler;
    std::optional<std::chrono::milliseconds> _timeLimit;
    std::chrono::milliseconds _watchInterval{1000};
    std::function<bool()> _goesOn;
    std::stop_token _cancellation;
};

} // namespace korvane
