// The keyboard in front of a text, as far as a model needs it.
#include "Platform/UIKit/UIKeyboard.h"

namespace korvane {
namespace {

std::weak_ptr<UIKeyboard> &holder() {
    static std::weak_ptr<UIKeyboard> keyboard;
    return keyboard;
}

} // namespace

std::shared_ptr<UIKeyboard> UIKeyboard::activeKeyboard() {
    return holder().lock();
}

void UIKeyboard::setActiveKeyboard(std::weak_ptr<UIKeyboard> keyboard) {
    holder() = std::move(keyboard);
}

} // namespace korvane
