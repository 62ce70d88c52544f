// What can have the keyboard.
#include "Platform/UIKit/UIResponder.h"

#include <utility>

namespace korvane {
namespace {

std::weak_ptr<UIResponder> &holder() {
    static std::weak_ptr<UIResponder> responder;
    return responder;
}

} // namespace

std::shared_ptr<UIResponder> UIResponder::firstResponder() {
    return holder().lock();
}

bool UIResponder::isFirstResponder() const {
    return firstResponder().get() == this;
}

bool UIResponder::becomeFirstResponder() {
    if (isFirstResponder()) return true;
    if (!canBecomeFirstResponder()) return false;
    if (const auto former = firstResponder(); former && !former->resignFirstResponder()) return false;
    if (firstResponder()) return false;
    holder() = weak_from_this();
    didBecomeFirstResponder();
    return true;
}

bool UIResponder::resignFirstResponder() {
    if (!isFirstResponder()) return true;
    if (!canResignFirstResponder()) return false;
    const auto self = shared_from_this(); // what is told now may let go of it
    holder().reset();
    didResignFirstResponder();
    return true;
}

} // namespace korvane
