// A large video, against curl that sends the same requests over one connection; and the memory that it takes.
#pragma once

namespace korvane::bench {

// Prints what it measured; whether all bounds hold.
bool videoStream();

} // namespace korvane::bench
