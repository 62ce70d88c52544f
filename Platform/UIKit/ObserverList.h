// Those who watch a model: the window, the command line, a test.
#pragma once

#include <memory>
#include <vector>

namespace korvane {

// Held weakly, told in the order in which they came. One may come or go while they are being told. Thread: main.
template <typename Observer>
class ObserverList {
public:
    void add(const std::shared_ptr<Observer> &observer) {
        std::erase_if(_observers, [](const auto &known) { return known.expired(); });
        _observers.push_back(observer);
    }
    // What is told is copied first: it may belong to something that an observer changes.
    template <typename... Parameters, typename... Arguments>
    void tell(void (Observer::*message)(Parameters...), Arguments... arguments) const {
        const auto observers = _observers;
        for (const auto &known : observers)
            if (const auto observer = known.lock()) (observer.get()->*message)(arguments...);
    }

private:
    std::vector<std::weak_ptr<Observer>> _observers;
};

} // namespace korvane
