// A page in the program's own window, and somebody who looks at it, taps and types.
#pragma once

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QVariantMap>

#include <functional>

class QPointingDevice;

namespace korvane::test {

class PageWindow {
public:
    // The page of that name (its file's, without the ending) with these properties; the window is open and drawn.
    PageWindow(const QString &page, const QVariantMap &properties, QSize size = {360, 640});

    // What is seen: visible items, depth first.
    QQuickItem *named(const QString &objectName) const; // null if there is none
    // The control of that text or accessible name.
    QQuickItem *withText(const QString &text) const;
    bool shows(const QString &text) const; // anywhere in what is written
    QStringList texts() const;

    // Where the item's middle is; scrolled to where need be. False, with a failure, for what is not there.
    bool click(QQuickItem *item);
    bool tap(QQuickItem *item);
    bool click(const QString &text) { return click(withText(text)); }
    bool tap(const QString &text) { return tap(withText(text)); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString &text);
    // Presses Tab until the item has the keyboard; false if it never gets there.
    bool tabTo(const std::function<bool(QQuickItem *)> &isIt);
    bool tabTo(const QString &text);
    QQuickItem *focused() const { return window->activeFocusItem(); }

    void waitForFrame();

    QQmlApplicationEngine engine;
    QQuickWindow *window = nullptr;

private:
    QQuickItem *_find(const std::function<bool(QQuickItem *)> &isIt) const;
    QPoint _middleOf(QQuickItem *item);
    QPointingDevice *_touch;
};

} // namespace korvane::test
