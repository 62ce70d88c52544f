// What the export of a video costs over ffmpeg run by hand.
#pragma once

namespace korvane::bench {

// Prints what it measured; whether all bounds hold.
bool exportVideos();

} // namespace korvane::bench
