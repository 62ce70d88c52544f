// The share sheet's window: its first frame, scrolling, memory.
#pragma once

namespace korvane::bench {

// With the software renderer, on a screen that nobody sees.
bool window();

} // namespace korvane::bench
