// Photos uploaded side by side, against one after the other.
#pragma once

namespace korvane::bench {

// False if a bound is missed.
bool sideBySide();

} // namespace korvane::bench
