// A page in the program's own window, and somebody who looks at it, taps and types.
#include "Tests/ShareSheet/PageWindow.h"

#include "Tests/Support/WaitFor.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace korvane::test {
namespace {

QString textOf(QQuickItem *item) {
    return item->property("text").toString();
}

// Depth first, what is on top last; null where the visitor never says yes.
QQuickItem *findIn(QQuickItem *item, const std::function<bool(QQuickItem *)> &isIt) {
    if (!item->isVisible()) return nullptr;
    if (isIt(item)) return item;
    for (QQuickItem *child : item->childItems())
        if (QQuickItem *found = findIn(child, isIt)) return found;
    return nullptr;
}

QQuickItem *flickableAround(QQuickItem *item) {
    while (item && !item->inherits("QQuickFlickable"))
        item = item->parentItem();
    return item;
}

} // namespace

PageWindow::PageWindow(const QString &page, const QVariantMap &properties, QSize size)
    : _touch(QTest::createTouchDevice()) {
    const QString folder = QStringLiteral("qrc:/qt/qml/Korvane/Sheet/qml/%1.qml");
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine.setInitialProperties({{QStringLiteral("firstPage"), QUrl(folder.arg(page))},
                                 {QStringLiteral("firstPageProperties"), properties},
                                 {QStringLiteral("width"), size.width()},
                                 {QStringLiteral("height"), size.height()}});
    engine.load(QUrl(folder.arg(QStringLiteral("Main"))));
    if (engine.rootObjects().isEmpty()) qFatal("the window did not open");
    window = qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst());
    if (!QTest::qWaitForWindowActive(window)) qFatal("the window did not show");
}

QQuickItem *PageWindow::_find(const std::function<bool(QQuickItem *)> &isIt) const {
    return findIn(window->contentItem(), isIt);
}

QQuickItem *PageWindow::named(const QString &objectName) const {
    return _find([&](QQuickItem *item) { return item->objectName() == objectName; });
}

QQuickItem *PageWindow::withText(const QString &text) const {
    return _find(
        [&](QQuickItem *item) { return item->metaObject()->indexOfSignal("clicked()") >= 0 && textOf(item) == text; });
}

QStringList PageWindow::texts() const {
    QStringList all;
    _find([&](QQuickItem *item) {
        if (item->inherits("QQuickText") && !textOf(item).isEmpty()) all.append(textOf(item));
        return false;
    });
    return all;
}

bool PageWindow::shows(const QString &text) const {
    return texts().join(u'\n').contains(text);
}

QPoint PageWindow::_middleOf(QQuickItem *item) {
    const auto middle = [&] { return item->mapToScene({item->width() / 2, item->height() / 2}); };
    if (QQuickItem *flickable = flickableAround(item->parentItem())) {
        const double top = flickable->mapToScene({}).y();
        const double beyond = std::max(0.0, middle().y() + item->height() / 2 - top - flickable->height()) +
                              std::min(0.0, middle().y() - item->height() / 2 - top);
        if (beyond != 0) flickable->setProperty("contentY", flickable->property("contentY").toDouble() + beyond);
        QCoreApplication::processEvents();
    }
    return middle().toPoint();
}

bool PageWindow::click(QQuickItem *item) {
    EXPECT_TRUE(item) << "to click: not among " << qPrintable(texts().join(u'|'));
    if (item) QTest::mouseClick(window, Qt::LeftButton, {}, _middleOf(item));
    return item;
}

bool PageWindow::tap(QQuickItem *item) {
    EXPECT_TRUE(item) << "to tap: not among " << qPrintable(texts().join(u'|'));
    if (!item) return false;
    const QPoint place = _middleOf(item);
    QTest::touchEvent(window, _touch).press(0, place, window);
    QTest::touchEvent(window, _touch).release(0, place, window);
    return true;
}

void PageWindow::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(window, key, modifiers);
}

void PageWindow::type(const QString &text) {
    for (const QChar c : text)
        QTest::keyClick(window, c.toLatin1());
}

bool PageWindow::tabTo(const std::function<bool(QQuickItem *)> &isIt) {
    for (int i = 0; i < 100; ++i) {
        if (focused() && isIt(focused())) return true;
        press(Qt::Key_Tab);
        if (qEnvironmentVariableIsSet("SHOWTAB")) qDebug() << focused() << (focused() ? textOf(focused()) : QString());
    }
    return false;
}

bool PageWindow::tabTo(const QString &text) {
    return tabTo([&](QQuickItem *item) { return textOf(item) == text; });
}

void PageWindow::waitForFrame() {
    QSignalSpy drawn(window, &QQuickWindow::frameSwapped);
    window->update();
    drawn.wait(5000);
}

} // namespace korvane::test
