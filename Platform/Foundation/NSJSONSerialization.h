// Property-list values as JSON text and back, with 64-bit integers exact.
#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <optional>

namespace korvane {

namespace NSJSONSerialization {

// Reads one JSON value, also a bare one: qint64 (quint64 above its range), double, bool, QString, QVariantList,
// QVariantMap; null gives an invalid QVariant. Null optional where the text is not JSON, with what is wrong and where,
// never quoting the text.
std::optional<QVariant> JSONObjectWithData(const QByteArray &text, QString *problem = nullptr);

// Writes the value, indented. Null where it holds something that JSON has not (bytes, dates, infinite numbers).
std::optional<QByteArray> dataWithJSONObject(const QVariant &value);

} // namespace NSJSONSerialization

} // namespace korvane
