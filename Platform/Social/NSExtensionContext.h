// The request that a share sheet answers.
#pragma once

#include "Platform/Foundation/NSError.h"

#include <functional>
#include <optional>

namespace korvane {

// Thread: main.
class NSExtensionContext {
public:
    enum class State { Open, Completed, Cancelled };

    State state() const { return _state; }
    const std::optional<NSError> &error() const { return _error; } // why it was cancelled, if anybody knows

    // The first of these ends the request; what comes later changes nothing.
    void completeRequest() { _end(State::Completed); }
    void cancelRequestWithError(const std::optional<NSError> &error) {
        if (_state == State::Open) _error = error;
        _end(State::Cancelled);
    }

    // The front end's: after a request that was cancelled with an error the person may try again.
    void reopen() {
        _state = State::Open;
        _error.reset();
    }

    // Hears each end of the request.
    std::function<void()> ended;

private:
    void _end(State state) {
        if (_state != State::Open) return;
        _state = state;
        if (ended) ended();
    }

    State _state = State::Open;
    std::optional<NSError> _error;
};

} // namespace korvane
