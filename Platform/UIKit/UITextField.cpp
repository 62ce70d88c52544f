// A line of text that the user edits.
#include "Platform/UIKit/UITextField.h"

#include <algorithm>

namespace korvane {

void UITextField::setText(const QString &text) {
    _text = text;
    setNeedsDisplay();
}

void UITextField::setTextColor(UIColor color) {
    _textColor = color;
    setNeedsDisplay();
}

bool UITextField::userReplacesCharacters(NSRange range, const QString &replacement) {
    const auto self = _self();
    if (!becomeFirstResponder()) return false;
    range.location = std::clamp<qint64>(range.location, 0, _text.size());
    range.length = std::clamp<qint64>(range.length, 0, _text.size() - range.location);
    const auto delegate = _delegate.lock();
    _isChanging = true;
    const bool isRefused = delegate && !delegate->textFieldShouldChangeCharactersInRange(self, range, replacement);
    _isChanging = false;
    if (isRefused) return false;
    setText(QString(_text).replace(range.location, range.length, replacement));
    return true;
}

bool UITextField::userPressesReturn() {
    const auto self = _self();
    if (!becomeFirstResponder()) return false;
    const auto delegate = _delegate.lock();
    return !delegate || delegate->textFieldShouldReturn(self);
}

void UITextField::didResignFirstResponder() {
    if (const auto delegate = _delegate.lock()) delegate->textFieldDidEndEditing(_self());
    setNeedsDisplay();
}

} // namespace korvane
