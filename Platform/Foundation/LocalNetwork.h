// Which addresses are this machine's or the local network's.
#pragma once

#include "Platform/Foundation/NSURL.h"

namespace korvane {

// Whether the URL's host is this machine by its usual name, or a loopback, link-local or private address. No name is
// looked up.
bool isInLocalNetwork(const NSURL &url);

} // namespace korvane
