// The base of everything that a front end draws.
#pragma once

#include "Platform/UIKit/ObserverList.h"
#include "Platform/UIKit/UIGeometry.h"
#include "Platform/UIKit/UIResponder.h"

#include <type_traits>
#include <vector>

namespace korvane {

enum class UIColor { Default, Clear, Black }; // Default: as the front end likes it

enum UIViewAutoresizing : quint32 {
    UIViewAutoresizingNone = 0,
    UIViewAutoresizingFlexibleWidth = 2,
    UIViewAutoresizingFlexibleHeight = 16,
};

class UIView;

class UIViewObserver {
public:
    virtual ~UIViewObserver() = default;
    // Something that is drawn has changed, in the view or in one below it.
    virtual void viewDidChange(UIView &view) = 0;
};

// Thread: main.
class UIView : public UIResponder {
public:
    static std::shared_ptr<UIView> init() { return std::make_shared<UIView>(); }

    void addObserver(const std::shared_ptr<UIViewObserver> &observer) { _observers.add(observer); }

    bool isOpaque() const { return _isOpaque; }
    void setOpaque(bool isOpaque) { change(_isOpaque, isOpaque); }
    UIColor backgroundColor() const { return _backgroundColor; }
    void setBackgroundColor(UIColor color) { change(_backgroundColor, color); }
    // What is behind it shows through: not opaque, and clear.
    void makeTransparent();

    // Frame and mask are kept as they are set, and move nothing: where a view stands is for the front end, and where a
    // row of a table stands for UITableView::rectForRowAtIndexPath.
    const CGRect &frame() const { return _frame; }
    void setFrame(const CGRect &frame) { change(_frame, frame); }
    quint32 autoresizingMask() const { return _autoresizingMask; } // UIViewAutoresizing bits
    void setAutoresizingMask(quint32 mask) { _autoresizingMask = mask; }
    // What is shown of the view, in its own coordinates.
    const CGRect &bounds() const { return _bounds; }
    virtual void setBounds(const CGRect &bounds) { change(_bounds, bounds); }

    void addSubview(const std::shared_ptr<UIView> &view);
    const std::vector<std::shared_ptr<UIView>> &subviews() const { return _subviews; }
    std::shared_ptr<UIView> superview() const { return _superview.lock(); }
    bool isDescendantOfView(const UIView &view) const; // also of itself
    // What has the keyboard, if that is the view or one below it; else null.
    std::shared_ptr<UIView> firstResponderWithin() const;

protected:
    // To be called by whoever changes something that is drawn; tells the observers here and above.
    void setNeedsDisplay();
    // Sets a field that is drawn, and calls the above if that changes it.
    template <typename Field>
    void change(Field &field, const std::type_identity_t<Field> &value) {
        if (field == value) return;
        field = value;
        setNeedsDisplay();
    }
    virtual void descendantDidChange(UIView &) {}
    // For views that are kept elsewhere than among the subviews.
    void adopt(UIView &view) { view._superview = sharedPointer(this); }

private:
    ObserverList<UIViewObserver> _observers;
    std::weak_ptr<UIView> _superview;
    std::vector<std::shared_ptr<UIView>> _subviews;
    CGRect _frame;
    CGRect _bounds;
    quint32 _autoresizingMask = UIViewAutoresizingNone;
    UIColor _backgroundColor = UIColor::Default;
    bool _isOpaque = true;
};

} // namespace korvane
