// The base of everything that a front end draws.
#include "Platform/UIKit/UIView.h"

namespace korvane {

void UIView::setOpaque(bool isOpaque) {
    _isOpaque = isOpaque;
    setNeedsDisplay();
}

void UIView::setBackgroundColor(UIColor color) {
    _backgroundColor = color;
    setNeedsDisplay();
}

void UIView::setFrame(const CGRect &frame) {
    _frame = frame;
    setBounds({_bounds.topLeft(), frame.size()});
}

void UIView::setBounds(const CGRect &bounds) {
    const CGSize growth = bounds.size() - _bounds.size();
    _bounds = bounds;
    for (const auto &view : _subviews) {
        CGRect frame = view->frame();
        if (view->autoresizingMask() & UIViewAutoresizingFlexibleWidth) frame.setWidth(frame.width() + growth.width());
        if (view->autoresizingMask() & UIViewAutoresizingFlexibleHeight)
            frame.setHeight(frame.height() + growth.height());
        if (frame != view->frame()) view->setFrame(frame);
    }
    setNeedsDisplay();
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

void UIView::setNeedsDisplay() {
    _observers.tell([this](UIViewObserver &observer) { observer.viewDidChange(*this); });
    for (auto above = superview(); above; above = above->superview()) {
        above->_observers.tell([&](UIViewObserver &observer) { observer.viewDidChange(*above); });
        above->descendantDidChange(*this);
    }
}

} // namespace korvane
