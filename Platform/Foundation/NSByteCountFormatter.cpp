// Numbers of bytes as people read them.
#include "Platform/Foundation/NSByteCountFormatter.h"

#include <QLocale>

namespace korvane {

QString NSByteCountFormatter::stringFromByteCount(float byteCount, NSByteCountFormatterCountStyle) {
    constexpr float megabyte = 1e6F;
    return QLocale().formattedDataSize(qint64(byteCount), byteCount < megabyte ? 0 : 1, QLocale::DataSizeSIFormat);
}

} // namespace korvane
