// Bounds on what one picture may cost.
#pragma once

namespace korvane {

// Ends the process with a line on standard error once it has used too much processor time or run too long, and makes
// allocations beyond some gigabytes fail. Pictures in memory never reach a core file.
void limitResources();

} // namespace korvane
