// A screen: a view, and what happens as it comes and goes.
#include "Platform/UIKit/UIViewController.h"

namespace korvane {

const std::shared_ptr<UIView> &UIViewController::view() {
    if (!_view) loadView();
    return _view;
}

void UIViewController::loadView() {
    setView(UIView::init());
}

// Screens have no files that they are read from: the names are for the classes' own use.
bool UIViewController::_initWithNibName(const std::optional<QString> &, const std::optional<QString> &) {
    return true;
}

} // namespace korvane
