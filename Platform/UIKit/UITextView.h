// A text of several lines that the user edits.
#pragma once

#include "Platform/UIKit/UIView.h"

namespace korvane {

class UITextView;

class UITextViewDelegate {
public:
    virtual ~UITextViewDelegate() = default;
    // Before the user's change is made; false: it is not made.
    virtual bool textViewShouldChangeTextInRange(const std::shared_ptr<UITextView> &, NSRange,
                                                 const QString &replacement) {
        Q_UNUSED(replacement)
        return true;
    }
    // After a change of the user's.
    virtual void textViewDidChange(const std::shared_ptr<UITextView> &) {}
};

class UITextView : public UIView {
public:
    static std::shared_ptr<UITextView> initWithFrame(const CGRect &frame);

    const QString &text() const { return _text; }
    void setText(const QString &text) { change(_text, text); } // asks nobody
    void setDelegate(std::weak_ptr<UITextViewDelegate> delegate) { _delegate = std::move(delegate); }

    // What the user does; the view takes the keyboard first. A range beyond the text is cut to it. False, and nothing
    // is changed, where the delegate refuses.
    bool userReplacesText(NSRange range, const QString &replacement);

protected:
    bool canBecomeFirstResponder() override { return true; }
    void didBecomeFirstResponder() override { setNeedsDisplay(); }
    void didResignFirstResponder() override { setNeedsDisplay(); }

private:
    QString _text;
    std::weak_ptr<UITextViewDelegate> _delegate;
};

} // namespace korvane
