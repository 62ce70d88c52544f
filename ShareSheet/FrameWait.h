// Waiting until the window has drawn.
#pragma once

#include <QQuickWindow>

#include <functional>

namespace korvane {

// Calls it once all that is changed by now is on the screen, from the event loop; after half a second also where there
// is nothing to see of the window, as while it is covered, and after five where it is seen and does not draw. Not after
// the window's end. Thread: main.
void afterNextFrame(QQuickWindow &window, std::function<void()> work);

} // namespace korvane
