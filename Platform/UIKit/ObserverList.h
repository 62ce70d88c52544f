// Those who watch a model: the window, the command line, a test.
#pragma once

#include <algorithm>
#include <memory>
#include <vector>

namespace korvane {

// Held weakly, told in the order in which they came. One may come or go while it is being told. Thread: main.
template <typename Observer>
class ObserverList {
public:
    void add(const std::shared_ptr<Observer> &observer) { _observers.push_back(observer); }
    void remove(const std::shared_ptr<Observer> &observer) {
        std::erase_if(_observers, [&](const auto &known) { return known.expired() || known.lock() == observer; });
    }
    template <typename Message>
    void tell(const Message &message) const {
        const auto observers = _observers;
        for (const auto &known : observers)
            if (const auto observer = known.lock()) message(*observer);
    }

private:
    std::vector<std::weak_ptr<Observer>> _observers;
};

} // namespace korvane
