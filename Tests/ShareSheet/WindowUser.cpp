// What a person does in front of the window.
#include "Tests/ShareSheet/WindowUser.h"

#include "Tests/Support/WaitFor.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QPointingDevice>
#include <QTest>

#include <gtest/gtest.h>

namespace korvane::test {
namespace {

QPointingDevice *finger() {
    static QPointingDevice *const device = QTest::createTouchDevice();
    return device;
}

QRectF placeOf(const QQuickItem &item) {
    return item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
}

// Whether some of it is within the window, and not cut off by what it scrolls in.
bool hasPlace(QQuickItem *item) {
    if (!item->window()) return false;
    QRectF place = placeOf(*item) & placeOf(*item->window()->contentItem());
    for (const QQuickItem *around = item->parentItem(); around; around = around->parentItem())
        if (around->clip()) place &= placeOf(*around);
    return !place.isEmpty();
}

constexpr int twoFrames = 35; // milliseconds

void collectPlaces(const QQuickItem &item, std::vector<QPointF> &places) {
    if (!item.isVisible()) return;
    places.push_back(item.mapToScene({}));
    for (const QQuickItem *child : item.childItems())
        collectPlaces(*child, places);
}

// Whether a page is on its way, however slowly it is drawn.
bool isTurning(const QQuickItem &item) {
    if (item.inherits("QQuickStackView") && item.property("busy").toBool()) return true;
    return std::ranges::any_of(item.childItems(), [](const QQuickItem *child) { return isTurning(*child); });
}

} // namespace

QString WindowUser::nameOf(QQuickItem *item) {
    QAccessibleInterface *interface = item ? QAccessible::queryAccessibleInterface(item) : nullptr;
    // Of a field that hides its text only the group around it tells.
    if (interface && interface->state().passwordEdit) interface = interface->parent();
    return interface && interface->role() != QAccessible::NoRole ? interface->text(QAccessible::Name) : QString();
}

QQuickItem *WindowUser::_search(QQuickItem *item, const std::function<bool(QQuickItem *)> &fits) const {
    if (!item->isVisible() || item->opacity() == 0) return nullptr;
    // What is drawn last lies on top.
    const auto children = item->childItems();
    for (auto child = children.rbegin(); child != children.rend(); ++child)
        if (QQuickItem *found = _search(*child, fits)) return found;
    return hasPlace(item) && fits(item) ? item : nullptr;
}

QQuickItem *WindowUser::find(const QString &name) const {
    QQuickItem *found = nullptr;
    waitFor(
        [&] {
            found = _search(_window.contentItem(), [&](QQuickItem *item) { return nameOf(item) == name; });
            return found != nullptr;
        },
        5000);
    EXPECT_TRUE(found) << "nothing called " << qPrintable(name);
    return found;
}

bool WindowUser::sees(const QString &name) const {
    return _search(_window.contentItem(), [&](QQuickItem *item) { return nameOf(item) == name; }) != nullptr;
}

bool WindowUser::reads(const QString &text) const {
    return _search(_window.contentItem(),
                   [&](QQuickItem *item) { return item->property("text").toString().contains(text); }) != nullptr;
}

bool WindowUser::isChecked(const QString &name) const {
    QQuickItem *item = find(name);
    return item && QAccessible::queryAccessibleInterface(item)->state().checked;
}

bool WindowUser::isEnabled(const QString &name) const {
    QQuickItem *item = find(name);
    return item && item->isEnabled();
}

QAccessible::Role WindowUser::roleOf(const QString &name) const {
    QQuickItem *item = find(name);
    return item ? QAccessible::queryAccessibleInterface(item)->role() : QAccessible::NoRole;
}

QPoint WindowUser::_middleOf(const QString &name) const {
    for (int tries = 0; tries < 10; ++tries) {
        waitsUntilStill();
        QQuickItem *item = find(name);
        if (!item) break;
        const QPoint place = item->mapToScene({item->width() / 2, item->height() / 2}).toPoint();
        if (place.y() < _window.height()) return place;
        swipes({_window.width() / 2.0, _window.height() - 60.0}, {_window.width() / 2.0, _window.height() - 160.0});
    }
    return {};
}

void WindowUser::clicks(const QString &name) const {
    QTest::mouseClick(&_window, Qt::LeftButton, Qt::NoModifier, _middleOf(name));
    QCoreApplication::processEvents();
}

void WindowUser::taps(const QString &name) const {
    const QPoint place = _middleOf(name);
    QTest::touchEvent(&_window, finger()).press(1, place, &_window);
    QTest::touchEvent(&_window, finger()).release(1, place, &_window);
    QCoreApplication::processEvents();
}

void WindowUser::swipes(QPointF from, QPointF to) const {
    waitsUntilStill();
    QTest::touchEvent(&_window, finger()).press(1, from.toPoint(), &_window);
    for (int step = 1; step <= 8; ++step) {
        QTest::touchEvent(&_window, finger()).move(1, (from + (to - from) * step / 8).toPoint(), &_window);
        QCoreApplication::processEvents();
    }
    QTest::touchEvent(&_window, finger()).release(1, to.toPoint(), &_window);
    QCoreApplication::processEvents();
}

void WindowUser::presses(int key, Qt::KeyboardModifiers modifiers) const {
    QTest::keyClick(&_window, Qt::Key(key), modifiers);
    QCoreApplication::processEvents();
}

void WindowUser::types(const QString &text) const {
    for (const QChar letter : text) {
        QTest::sendKeyEvent(QTest::Click, &_window, Qt::Key_unknown, QString(letter), Qt::NoModifier);
        QCoreApplication::processEvents();
    }
}

void WindowUser::composes(const QString &preedit, const QString &commit) const {
    QInputMethodEvent event(preedit, {});
    event.setCommitString(commit);
    QCoreApplication::sendEvent(QGuiApplication::focusObject(), &event);
    QCoreApplication::processEvents();
}

QString WindowUser::nameOfFocused() const {
    waitsUntilStill();
    return nameOf(focused());
}

void WindowUser::waitsUntilStill() const {
    std::vector<QPointF> places;
    QElapsedTimer stillSince;
    waitFor(
        [&] {
            std::vector<QPointF> now;
            collectPlaces(*_window.contentItem(), now);
            if (now != places || !stillSince.isValid()) stillSince.start();
            places = std::move(now);
            return stillSince.elapsed() > twoFrames && !isTurning(*_window.contentItem());
        },
        3000);
}

} // namespace korvane::test
