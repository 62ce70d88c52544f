// What a person does in front of the window.
#pragma once

#include <QAccessible>
#include <QQuickItem>
#include <QQuickWindow>

#include <functional>

namespace korvane::test {

// Things are found by what a screen reader says of them.
class WindowUser {
public:
    explicit WindowUser(QQuickWindow &window) : _window(window) {}

    // The item of that name that is seen in the window, wholly or in part; null if there is none. It is waited for.
    QQuickItem *find(const QString &name) const;
    bool sees(const QString &name) const;
    // Whether some text in the window has it in it.
    bool reads(const QString &text) const;
    bool isChecked(const QString &name) const;
    bool isEnabled(const QString &name) const;
    QAccessible::Role roleOf(const QString &name) const;

    void clicks(const QString &name) const;
    void taps(const QString &name) const;
    void swipes(QPointF from, QPointF to) const; // with a finger
    void presses(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void types(const QString &text) const;
    // An input method's doing: what is being composed, and what is settled.
    void composes(const QString &preedit, const QString &commit = {}) const;
    // What has the keyboard; null if nothing has.
    QQuickItem *focused() const { return _window.activeFocusItem(); }
    QString nameOfFocused() const;
    void waitsUntilStill() const; // until nothing in the window moves

    static QString nameOf(QQuickItem *item);

private:
    QQuickItem *_search(QQuickItem *item, const std::function<bool(QQuickItem *)> &fits) const;
    QPoint _middleOf(const QString &name) const;

    QQuickWindow &_window;
};

} // namespace korvane::test
