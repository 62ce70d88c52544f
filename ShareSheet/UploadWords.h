// How the window tells of an upload.
#pragma once

#include "FrontEnd/Upload.h"

#include <QString>

#include <optional>

namespace korvane {

// In the user's language, but for the reasons, which come from the upload service.
namespace UploadWords {

QString serviceName(const Upload &upload);
QString title(const Upload &upload);
// "Waiting for the network, next try 14:05", "Failed".
QString state(const Upload &upload);
// Why it failed or waits; empty where there is nothing to say.
QString reason(const Upload &upload);
// "1.2 MB of 3.4 MB"; of what is done the whole; empty where nothing is known.
QString bytes(const Upload &upload);
QString speed(double bytesPerSecond);
// "about 3 min left"
QString timeLeft(qint64 seconds);
// What to ask before it is removed; empty where nothing is lost by that.
QString removalQuestion(const Upload &upload);

} // namespace UploadWords

} // namespace korvane
