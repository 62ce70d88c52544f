// Names of the upload service's status interface on the bus.
#pragma once

#include <QString>

namespace korvane {

namespace UploadsInterface {

inline QString name() {
    return QStringLiteral("com.zorvex.korvane.Uploads");
}
inline QString path() {
    return QStringLiteral("/com/zorvex/korvane/Uploads");
}

} // namespace UploadsInterface

} // namespace korvane
