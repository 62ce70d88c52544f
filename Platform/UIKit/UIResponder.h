// What can have the keyboard.
#pragma once

#include <memory>

namespace korvane {

// One responder a process has the keyboard. Thread: main.
class UIResponder : public std::enable_shared_from_this<UIResponder> {
public:
    virtual ~UIResponder() = default;

    // Null if nobody has the keyboard.
    static std::shared_ptr<UIResponder> firstResponder();

    bool isFirstResponder() const;
    // Takes the keyboard, after the one who has it has given it up. False if either does not want to, or if somebody
    // else has taken it meanwhile.
    bool becomeFirstResponder();
    // False if it does not want to give it up. True also if it does not have it.
    bool resignFirstResponder();

protected:
    virtual bool canBecomeFirstResponder() { return false; }
    virtual bool canResignFirstResponder() { return true; }
    virtual void didBecomeFirstResponder() {}
    virtual void didResignFirstResponder() {}

    // Of this, as the class that it is called in.
    template <typename Self>
    static std::shared_ptr<Self> sharedPointer(Self *self) {
        return std::static_pointer_cast<Self>(self->shared_from_this());
    }
};

} // namespace korvane
