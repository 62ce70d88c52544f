// A line of text that the user edits.
#pragma once

#include "Platform/UIKit/UIView.h"

namespace korvane {

class UITextField;

class UITextFieldDelegate {
public:
    virtual ~UITextFieldDelegate() = default;
    // Before the user's change is made; false: it is not made.
    virtual bool textFieldShouldChangeCharactersInRange(const std::shared_ptr<UITextField> &, NSRange,
                                                        const QString &replacement) {
        Q_UNUSED(replacement)
        return true;
    }
    virtual void textFieldDidEndEditing(const std::shared_ptr<UITextField> &) {}
    // The return key. True: the field does what it usually does, which is nothing.
    virtual bool textFieldShouldReturn(const std::shared_ptr<UITextField> &) { return true; }
};

class UITextField : public UIView {
public:
    const QString &text() const { return _text; }
    void setText(const QString &text) { change(_text, text); } // asks nobody
    UIColor textColor() const { return _textColor; }
    void setTextColor(UIColor color) { change(_textColor, color); }
    void setDelegate(std::weak_ptr<UITextFieldDelegate> delegate) { _delegate = std::move(delegate); }

    // What the user does; the field takes the keyboard first. A range beyond the text is cut to it.

    // False, and nothing is changed, where the delegate refuses.
    bool userReplacesCharacters(NSRange range, const QString &replacement);
    bool userPressesReturn();

protected:
    bool canBecomeFirstResponder() override { return true; }
    // Not in the middle of a change: what is typed would be lost.
    bool canResignFirstResponder() override { return !_isChanging; }
    void didBecomeFirstResponder() override { setNeedsDisplay(); }
    void didResignFirstResponder() override;

private:
    QString _text;
    bool _isChanging = false;
    UIColor _textColor = UIColor::Default;
    std::weak_ptr<UITextFieldDelegate> _delegate;
};

} // namespace korvane
