// Small pictures of photo and video files.
#pragma once

#include "ShareSheet/ThumbnailQueue.h"

namespace korvane {

namespace ThumbnailMaker {

// Made by other programs: a damaged file harms nothing here. Null where the file shows nothing.
QImage make(const ThumbnailQueue::Order &order, std::stop_token wanted);

} // namespace ThumbnailMaker

} // namespace korvane
