// A row of a table.
#pragma once

#include "Platform/UIKit/UILabel.h"
#include "Platform/UIKit/UITextField.h"
#include "Platform/UIKit/UITextView.h"

namespace korvane {

enum UITableViewCellStyle : qint64 {
    UITableViewCellStyleDefault = 0,
    UITableViewCellStyleEditable = 1000, // with a text field over its whole width
};

enum UITableViewCellAccessoryType : qint64 {
    UITableViewCellAccessoryNone = 0,
    UITableViewCellAccessoryCheckmark = 3,
};

enum UITableViewCellSelectionStyle : qint64 {
    UITableViewCellSelectionStyleNone = 0,
    UITableViewCellSelectionStyleDefault = 3,
};

class UITableViewCell : public UIView {
public:
    static std::shared_ptr<UITableViewCell> initWithStyle(UITableViewCellStyle style, const QString &reuseIdentifier);

    UITableViewCellStyle style() const { return _style; }
    const QString &reuseIdentifier() const { return _reuseIdentifier; }
    const std::shared_ptr<UILabel> &textLabel() const { return _textLabel; }
    // Null but for style 1000.
    const std::shared_ptr<UITextField> &editableTextField() const { return _editableTextField; }
    // The text of several lines that the data source has put into the cell; null if there is none.
    std::shared_ptr<UITextView> textView() const;
    // Points between the cell's edge and the field.
    double textFieldOffset() const { return _textFieldOffset; }
    void setTextFieldOffset(double offset) { change(_textFieldOffset, offset); }
    UITableViewCellAccessoryType accessoryType() const { return _accessoryType; }
    void setAccessoryType(UITableViewCellAccessoryType type) { change(_accessoryType, type); }
    UITableViewCellSelectionStyle selectionStyle() const { return _selectionStyle; }
    void setSelectionStyle(UITableViewCellSelectionStyle style) { change(_selectionStyle, style); }

    // Before it is given out for another row: the text field is emptied, all else is left to the next user.
    void prepareForReuse();

private:
    UITableViewCell() = default;

    UITableViewCellStyle _style = UITableViewCellStyleDefault;
    QString _reuseIdentifier;
    std::shared_ptr<UILabel> _textLabel;
    std::shared_ptr<UITextField> _editableTextField;
    double _textFieldOffset = 15;
    UITableViewCellAccessoryType _accessoryType = UITableViewCellAccessoryNone;
    UITableViewCellSelectionStyle _selectionStyle = UITableViewCellSelectionStyleDefault;
};

} // namespace korvane
