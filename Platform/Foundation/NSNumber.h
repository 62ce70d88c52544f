// How numbers, booleans and texts in property-list values are read and written.
#pragma once

#include <QString>
#include <QVariant>

namespace korvane {

// The integer value: of a number cut towards zero, of a boolean 0 or 1, of a text its leading white space, sign and
// digits (limited to 64 bits, 0 where there are none), of anything else 0.
qint64 integerValue(const QVariant &value);
// The same in 32 bits: numbers keep their low bits, texts are limited to the 32-bit range.
qint32 intValue(const QVariant &value);
// The boolean value: of a number whether it is not 0, of a text whether its first character that is neither white
// space, sign nor "0" is one of Y, y, T, t and 1 to 9, of anything else false.
bool boolValue(const QVariant &value);
// The text of a value where a text is wanted: a string as it is, a boolean "0" or "1", a number in decimal.
QString textValue(const QVariant &value);

} // namespace korvane
