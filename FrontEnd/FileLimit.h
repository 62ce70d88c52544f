// How many files a program may have open.
#pragma once

namespace korvane {

// As many as the system allows. Every photo of a share keeps its file open until it is handed over.
void raiseFileLimit();

} // namespace korvane
