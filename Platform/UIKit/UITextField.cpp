// A line of text that the user edits.
#include "Platform/UIKit/UITextField.h"

namespace korvane {

bool UITextField::userReplacesCharacters(NSRange range, const QString &replacement) {
    const auto self = sharedPointer(this);
    if (!becomeFirstResponder()) return false;
    range = range.cutTo(_text.size());
    const auto delegate = _delegate.lock();
    _isChanging = true;
    const bool isRefused = delegate && !delegate->textFieldShouldChangeCharactersInRange(self, range, replacement);
    _isChanging = false;
    if (isRefused) return false;
    setText(stringByReplacingCharactersInRange(_text, range, replacement));
    return true;
}

bool UITextField::userPressesReturn() {
    const auto self = sharedPointer(this);
    if (!becomeFirstResponder()) return false;
    const auto delegate = _delegate.lock();
    return !delegate || delegate->textFieldShouldReturn(self);
}

void UITextField::didResignFirstResponder() {
    if (const auto delegate = _delegate.lock()) delegate->textFieldDidEndEditing(sharedPointer(this));
    setNeedsDisplay();
}

} // namespace korvane
