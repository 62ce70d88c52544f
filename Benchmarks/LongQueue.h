// A service with a very long queue, against one with an empty queue.
#pragma once

namespace korvane::bench {

// False if a bound is missed.
bool longQueue();

} // namespace korvane::bench
