// Numbers of bytes as people read them.
#include "Platform/Foundation/NSByteCountFormatter.h"

#include <QLocale>

namespace korvane {

namespace {

constexpr float megabyte = 1e6F;
constexpr float gigabyte = 1e9F;

// What would be rounded to 1000 of a unit is one of the next.
float withoutThousands(float byteCount) {
    if (byteCount < megabyte && byteCount >= megabyte - 500) return megabyte;
    if (byteCount < gigabyte && byteCount >= gigabyte - 50'000) return gigabyte;
    return byteCount;
}

} // namespace

QString NSByteCountFormatter::stringFromByteCount(float byteCount, NSByteCountFormatterCountStyle) {
    const float shown = withoutThousands(byteCount);
    return QLocale().formattedDataSize(qint64(shown), shown < megabyte ? 0 : 1, QLocale::DataSizeSIFormat);
}

} // namespace korvane
