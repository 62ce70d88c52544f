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

std::shared_ptr<UITextView> UITableViewCell::textView() const {
    for (const auto &view : subviews())
        if (auto textView = std::dynamic_pointer_cast<UITextView>(view)) return textView;
    return nullptr;
}

void UITableViewCell::prepareForReuse() {
    if (_editableTextField) _editableTextField->setText({});
}

} // namespace korvane
