// A text of several lines that the user edits.
#include "Platform/UIKit/UITextView.h"

#include <algorithm>

namespace korvane {

std::shared_ptr<UITextView> UITextView::initWithFrame(const CGRect &frame) {
    const auto view = std::make_shared<UITextView>();
    view->setFrame(frame);
    return view;
}

void UITextView::setText(const QString &text) {
    _text = text;
    setNeedsDisplay();
}

bool UITextView::userReplacesText(NSRange range, const QString &replacement) {
    const auto self = std::static_pointer_cast<UITextView>(shared_from_this());
    if (!becomeFirstResponder()) return false;
    range.location = std::clamp<qint64>(range.location, 0, _text.size());
    range.length = std::clamp<qint64>(range.length, 0, _text.size() - range.location);
    const auto delegate = _delegate.lock();
    if (delegate && !delegate->textViewShouldChangeTextInRange(self, range, replacement)) return false;
    setText(QString(_text).replace(range.location, range.length, replacement));
    if (delegate) delegate->textViewDidChange(self);
    return true;
}

} // namespace korvane
