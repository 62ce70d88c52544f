// A child that runs: its end, its words, and the wish to stop it.
#include "Platform/Foundation/RunningChild.h"

#include <poll.h>
#include <sys/eventfd.h>

#include <algorithm>
#include <cerrno>
#include <climits>

namespace korvane {
namespace {

constexpr qsizetype mostErrorText = 16LL * 1024;
constexpr qsizetype pipeCapacity = 64LL * 1024;

// Takes what is there, but no more than a pipe holds, or a child that never pauses would get all attention. False at
// the end. A grandchild may keep the pipe open, so nobody waits for that.
template <typename Take>
bool drain(const FileDescriptor &pipe, Take take) {
    char buffer[4096];
    for (qsizetype taken = 0; taken < pipeCapacity;) {
        const ssize_t count = ::read(pipe.get(), buffer, sizeof buffer);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return count < 0 && errno == EAGAIN;
        take(QByteArray(buffer, count));
        taken += count;
    }
    return true;
}

} // namespace

RunningChild::RunningChild(LaunchedChild child, Terms terms)
    : _child(std::move(child)), _terms(std::move(terms)), _wish(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    for (const FileDescriptor *pipe : {&_child.output, &_child.errors})
        if (*pipe) ::fcntl(pipe->get(), F_SETFL, O_NONBLOCK);
}

ChildProcess::Result RunningChild::wait() {
    const std::stop_callback onCancel(_terms.cancellation, [this] { ::eventfd_write(_wish.get(), 1); });
    const auto ending = _watch();
    if (ending != ChildProcess::Exited) ::kill(_child.process, SIGKILL);
    const siginfo_t info = waitForEnd(_child.process);
    _readOutput();
    _readErrors();
    const bool exited = info.si_code == CLD_EXITED;
    if (ending != ChildProcess::Exited && !exited) return {ending, info.si_status, _text};
    return {exited ? ChildProcess::Exited : ChildProcess::Signalled, info.si_status, _text};
}

// Exited once the child has ended by itself, else the reason to end it.
ChildProcess::Ending RunningChild::_watch() {
    const auto deadline = _terms.timeLimit ? Clock::now() + *_terms.timeLimit : Clock::time_point::max();
    pollfd watched[] = {{_child.end.get(), POLLIN, 0},
                        {_wish.get(), POLLIN, 0},
                        {_child.errors.get(), POLLIN, 0},
                        {_child.output.get(), POLLIN, 0}};
    for (;;) {
        if (Clock::now() >= deadline) return ChildProcess::TimedOut;
        if (_terms.goesOn && !_terms.goesOn()) return ChildProcess::TimedOut;
        if (::poll(watched, std::size(watched), _patience(deadline)) < 0) continue;
        if (watched[0].revents != 0) return ChildProcess::Exited;
        if (watched[1].revents != 0) return ChildProcess::Cancelled;
        if (watched[2].revents != 0 && !_readErrors()) watched[2].fd = -1;
        if (watched[3].revents != 0 && !_readOutput()) watched[3].fd = -1;
    }
}

// Milliseconds until somebody must look again; -1 for never.
int RunningChild::_patience(Clock::time_point deadline) const {
    if (!_terms.timeLimit && !_terms.goesOn) return -1;
    auto patience = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
    if (_terms.goesOn) patience = std::min(patience, _terms.watchInterval);
    return int(std::clamp<long long>(patience.count(), 0, INT_MAX));
}

bool RunningChild::_readErrors() {
    return drain(_child.errors, [this](const QByteArray &piece) { _text = (_text + piece).right(mostErrorText); });
}

bool RunningChild::_readOutput() {
    return _child.output && drain(_child.output, _terms.outputHandler);
}

} // namespace korvane
