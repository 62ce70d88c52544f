// The hand-over of many photos, against a copy of their files.
#pragma once

namespace korvane::bench {

// False if a bound is missed.
bool handOver();

} // namespace korvane::bench
