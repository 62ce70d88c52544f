// The bytes of what is attached to a share.
#pragma once

#include "Platform/Social/SLAttachment.h"

namespace korvane {

// The payload, else what is in its file; null, with a line in the log, if neither can be had. what ("image", "video")
// and service ("flickr", "vimeo") are for the log.
std::optional<NSData> dataOfAttachment(const SLAttachment &attachment, const char *what, const char *service);

} // namespace korvane
