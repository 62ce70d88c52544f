// The base of everything that a front end draws.
#include "Platform/UIKit/UIView.h"

#include <functional>

namespace korvane {

void UIView::makeTransparent() {
    setOpaque(false);
    setBackgroundColor(UIColor::Clear);
}

void UIView::addSubview(const std::shared_ptr<UIView> &view) {
    adopt(*view);
    _subviews.push_back(view);
    setNeedsDisplay();
}

bool UIView::isDescendantOfView(const UIView &view) const {
    const auto above = superview();
    return this == &view || (above && above->isDescendantOfView(view));
}

std::shared_ptr<UIView> UIView::firstResponderWithin() const {
    const auto responder = std::dynamic_pointer_cast<UIView>(firstResponder());
    return responder && responder->isDescendantOfView(*this) ? responder : nullptr;
}

void UIView::setNeedsDisplay() {
    _observers.tell(&UIViewObserver::viewDidChange, std::ref(*this));
    for (auto above = superview(); above; above = above->superview()) {
        above->_observers.tell(&UIViewObserver::viewDidChange, std::ref(*above));
        above->descendantDidChange(*this);
    }
}

} // namespace korvane
