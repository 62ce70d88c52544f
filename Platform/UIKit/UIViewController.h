// A screen: a view, and what happens as it comes and goes.
#pragma once

#include "Platform/UIKit/UIView.h"

#include <QString>

#include <optional>

namespace korvane {

// Made by a static function init… of each class. Thread: main.
class UIViewController : public UIResponder {
public:
    const std::optional<QString> &title() const { return _title; }
    void setTitle(const std::optional<QString> &title) { _title = title; }

    // Loaded when it is first asked for.
    const std::shared_ptr<UIView> &view();
    virtual void loadView();
    virtual void viewWillAppear(bool animated) { Q_UNUSED(animated) }
    virtual void viewDidAppear(bool animated) { Q_UNUSED(animated) }
    virtual void viewWillDisappear(bool animated) { Q_UNUSED(animated) }
    virtual void viewDidDisappear(bool animated) { Q_UNUSED(animated) }

    // In points; a width or height of 0 is left to whoever shows the screen.
    virtual CGSize preferredContentSize() { return {0, 0}; }

protected:
    // What each static function init… does first; false: there will be no controller.
    virtual bool _initWithNibName(const std::optional<QString> &nibName, const std::optional<QString> &bundle);
    void setView(std::shared_ptr<UIView> view) { _view = std::move(view); }

private:
    std::optional<QString> _title;
    std::shared_ptr<UIView> _view;
};

} // namespace korvane
