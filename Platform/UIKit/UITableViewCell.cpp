// A row of a table.
#include "Platform/UIKit/UITableViewCell.h"

namespace korvane {

std::shared_ptr<UITableViewCell> UITableViewCell::initWithStyle(UITableViewCellStyle style,
                                                                const QString &reuseIdentifier) {
    const std::shared_ptr<UITableViewCell> cell(new UITableViewCell);
    cell->_style = style;
    cell->_reuseIdentifier = reuseIdentifier;
    cell->_textLabel = std::make_shared<UILabel>();
    cell->addSubview(cell->_textLabel);
    if (style == UITableViewCellStyleEditable) {
        cell->_editableTextField = std::make_shared<UITextField>();
        cell->addSubview(cell->_editableTextField);
    }
    return cell;
}

void UITableViewCell::setTextFieldOffset(double offset) {
    _textFieldOffset = offset;
    setNeedsDisplay();
}

void UITableViewCell::setAccessoryType(qint64 type) {
    _accessoryType = type;
    setNeedsDisplay();
}

void UITableViewCell::setSelectionStyle(qint64 style) {
    _selectionStyle = style;
    setNeedsDisplay();
}

void UITableViewCell::prepareForReuse() {
    if (_editableTextField) _editableTextField->setText({});
}

} // namespace korvane
