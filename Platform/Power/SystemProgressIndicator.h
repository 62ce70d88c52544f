// The mark that shows in the desktop's launcher while uploads are under way.
#pragma once

namespace korvane {

// Shows or hides the progress bar on the launcher's entry of the share sheet. A bar that is shown and not renewed
// within that many seconds hides by itself. Does nothing where there is no session bus. Thread: the main thread alone.
void setSystemProgressIndicator(bool on, int timeoutSeconds);

} // namespace korvane
