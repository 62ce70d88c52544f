// The person's web browser.
#pragma once

#include <QString>

#include <functional>

namespace korvane {

namespace Browser {

// Opens the address with xdg-open, which looks at $BROWSER and the desktop. A browser in a window goes on after this
// program; one in the terminal shares it. `failed` runs on the main queue if none could be opened.
void open(const QString &address, std::function<void()> failed);

} // namespace Browser

} // namespace korvane
