// How numbers, booleans and texts in property-list values are read and written.
#include "Platform/Foundation/NSNumber.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace korvane {
namespace {

qsizetype skipSpace(QStringView text) {
    qsizetype i = 0;
    while (i < text.size() && text[i].isSpace())
        ++i;
    return i;
}

qint64 leadingInteger(QStringView text) {
    constexpr quint64 most = std::numeric_limits<qint64>::max();
    qsizetype i = skipSpace(text);
    const bool negative = i < text.size() && text[i] == u'-';
    if (i < text.size() && (text[i] == u'-' || text[i] == u'+')) ++i;
    quint64 value = 0;
    for (; i < text.size() && text[i] >= u'0' && text[i] <= u'9'; ++i) {
        const quint64 digit = text[i].unicode() - u'0';
        if (value > (most - digit) / 10) return negative ? std::numeric_limits<qint64>::min() : qint64(most);
        value = value * 10 + digit;
    }
    return negative ? -qint64(value) : qint64(value);
}

qint64 truncated(double value) {
    if (std::isnan(value)) return 0;
    if (value >= 9223372036854775807.0) return std::numeric_limits<qint64>::max();
    if (value <= -9223372036854775808.0) return std::numeric_limits<qint64>::min();
    return qint64(value);
}

bool leadingBool(QStringView text) {
    qsizetype i = skipSpace(text);
    if (i < text.size() && (text[i] == u'-' || text[i] == u'+')) ++i;
    while (i < text.size() && text[i] == u'0')
        ++i;
    return i < text.size() && QStringView(u"YyTt123456789").contains(text[i]);
}

} // namespace

qint64 integerValue(const QVariant &value) {
    switch (value.typeId()) {
    case QMetaType::QString:
        return leadingInteger(value.toString());
    case QMetaType::Double:
    case QMetaType::Float:
        return truncated(value.toDouble());
    case QMetaType::ULongLong:
    case QMetaType::ULong:
        return qint64(value.toULongLong());
    case QMetaType::Bool:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return value.toLongLong();
    default:
        return 0;
    }
}

qint32 intValue(const QVariant &value) {
    const qint64 wide = integerValue(value);
    if (value.typeId() == QMetaType::QString)
        return qint32(std::clamp<qint64>(wide, std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max()));
    return qint32(wide);
}

bool boolValue(const QVariant &value) {
    if (value.typeId() == QMetaType::QString) return leadingBool(value.toString());
    if (value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float) return value.toDouble() != 0;
    return integerValue(value) != 0;
}

QString textValue(const QVariant &value) {
    if (value.typeId() == QMetaType::Bool) return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    return value.toString();
}

} // namespace korvane
