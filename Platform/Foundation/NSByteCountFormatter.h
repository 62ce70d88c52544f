// Numbers of bytes as people read them.
#pragma once

#include <QString>

namespace korvane {

enum NSByteCountFormatterCountStyle : qint64 {
    NSByteCountFormatterCountStyleFile = 1, // of files: a kilobyte has 1,000 bytes
};

namespace NSByteCountFormatter {

// "12.3 MB", in the user's locale; whole bytes and kilobytes, one decimal place above.
QString stringFromByteCount(float byteCount, NSByteCountFormatterCountStyle countStyle);

} // namespace NSByteCountFormatter

} // namespace korvane
