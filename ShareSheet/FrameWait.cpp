// Waiting until the window has drawn.
#include "ShareSheet/FrameWait.h"

#include <QTimer>

namespace korvane {
namespace {

constexpr int lookInterval = 500; // milliseconds
constexpr int mostLooks = 10;     // at a window that is seen but does not draw

// The first frame that comes may have been begun before the change.
class FrameWait : public QObject {
public:
    FrameWait(QQuickWindow &window, std::function<void()> work)
        : QObject(&window), _window(window), _work(std::move(work)) {
        connect(&window, &QQuickWindow::frameSwapped, this, &FrameWait::_frameShown, Qt::QueuedConnection);
        connect(&_timer, &QTimer::timeout, this, &FrameWait::_lookWhetherSeen);
        _timer.start(lookInterval);
        window.update();
    }

private:
    void _frameShown() {
        if (++_frames < 2) return _window.update();
        _end();
    }
    void _lookWhetherSeen() {
        if (!_window.isExposed() || ++_looks == mostLooks) return _end();
        _window.update();
    }
    void _end() {
        if (!_work) return;
        const auto work = std::exchange(_work, nullptr);
        deleteLater();
        work();
    }

    QQuickWindow &_window;
    std::function<void()> _work;
    QTimer _timer;
    int _frames = 0;
    int _looks = 0;
};

} // namespace

void afterNextFrame(QQuickWindow &window, std::function<void()> work) {
    new FrameWait(window, std::move(work));
}

} // namespace korvane
