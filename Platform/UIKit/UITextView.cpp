// A text of several lines that the user edits.
#include "Platform/UIKit/UITextView.h"

namespace korvane {

std::shared_ptr<UITextView> UITextView::initWithFrame(const CGRect &frame) {
    const auto view = std::make_shared<UITextView>();
    view->setFrame(frame);
    return view;
}

bool UITextView::userReplacesText(NSRange range, const QString &replacement) {
    const auto self = sharedPointer(this);
    if (!becomeFirstResponder()) return false;
    range = range.cutTo(_text.size());
    const auto delegate = _delegate.lock();
    if (delegate && !delegate->textViewShouldChangeTextInRange(self, range, replacement)) return false;
    setText(stringByReplacingCharactersInRange(_text, range, replacement));
    if (delegate) delegate->textViewDidChange(self);
    return true;
}

} // namespace korvane
