// What is looked at in a ticket before a video goes to where it points.
#pragma once

#include "Korvane/VimeoCheckpoint.h"
#include "Platform/Foundation/NSError.h"

#include <optional>

namespace korvane {

namespace TicketCheck {

// Null if the ticket can be used. An endpoint may be on any host, but on this machine or in the local network only if
// the API's host is: an answer from outside must not steer uploads into the inside.
std::optional<NSError> objection(const VimeoCheckpoint &checkpoint);

} // namespace TicketCheck

} // namespace korvane
