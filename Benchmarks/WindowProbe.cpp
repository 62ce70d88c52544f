// korvane-window-probe previews|albums FILE...: opens the share sheet for photos and scrolls through a list of it, its
// previews or the albums, to the end and back. Prints how many frames that took, how many of them came later than 33 ms
// after the one before, and the largest size of the process in KiB.
#include "ShareSheet/SheetApplication.h"
#include "Tests/Support/WaitFor.h"

#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QQuickItem>
#include <QTest>

#include <cstdio>

using namespace korvane;
using test::waitFor;

namespace {

constexpr double pixelsPerFrame = 60; // as a quick finger does
constexpr qint64 longestFrame = 33'000'000;

QQuickItem *listOf(QQuickItem *item, const QAbstractItemModel *model) {
    if (item->inherits("QQuickListView") && item->property("model").value<QObject *>() == model) return item;
    for (QQuickItem *child : item->childItems())
        if (QQuickItem *list = listOf(child, model)) return list;
    return nullptr;
}

class Scroll : public QObject {
public:
    Scroll(QQuickWindow &window, QQuickItem &list, bool isFlat)
        : _window(window), _list(list), _place(isFlat ? "contentX" : "contentY"), _end(isFlat ? "atXEnd" : "atYEnd"),
          _begin(isFlat ? "atXBeginning" : "atYBeginning") {
        connect(&window, &QQuickWindow::frameSwapped, this, &Scroll::_frameShown, Qt::QueuedConnection);
        window.update();
    }
    bool isDone() const { return _step < 0 && _list.property(_begin).toBool(); }
    int frames() const { return _frames; }
    int lateFrames() const { return _lateFrames; }

private:
    void _frameShown() {
        if (isDone()) return;
        if (_sinceFrame.isValid()) {
            ++_frames;
            _lateFrames += _sinceFrame.nsecsElapsed() > longestFrame;
        }
        _sinceFrame.start();
        if (_list.property(_end).toBool()) _step = -pixelsPerFrame;
        _list.setProperty(_place, _list.property(_place).toDouble() + _step);
        _window.update();
    }

    QQuickWindow &_window;
    QQuickItem &_list;
    const char *const _place, *const _end, *const _begin;
    QElapsedTimer _sinceFrame;
    double _step = pixelsPerFrame;
    int _frames = 0;
    int _lateFrames = 0;
};

QByteArray largestSize() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) return {};
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:")) return line.mid(6).trimmed().split(' ').first();
    return {};
}

} // namespace

int main(int argc, char **argv) {
    const QGuiApplication application(argc, argv);
    const bool isFlat = QByteArray(argv[1]) == "previews";
    QByteArrayList request{"flickr"};
    for (int i = 2; i < argc; ++i)
        request.append(argv[i]);
    SheetApplication program;
    QString problem;
    if (!program.open(*SheetRequest::parse(request, problem))) return 1;
    SheetModel &sheet = *program.sheet();
    if (!waitFor([&] { return sheet.attachments()->isReady(); })) return 1;
    const QAbstractItemModel *model = sheet.attachments();
    if (!isFlat) {
        sheet.tapItem(0);
        model = sheet.option();
        if (!waitFor([&] { return model->rowCount() >= 1000; })) return 1;
    }
    QTest::qWait(500); // the page has slid in
    QQuickItem *list = listOf(program.window()->contentItem(), model);
    if (!list) return 1;
    const Scroll scroll(*program.window(), *list, isFlat);
    if (!waitFor([&] { return scroll.isDone(); }, 120'000)) return 1;
    std::printf("%d %d %s\n", scroll.frames(), scroll.lateFrames(), largestSize().constData());
    return 0;
}
