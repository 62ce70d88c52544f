// How texts, data and lists in property-list values are read.
#pragma once

#include "Platform/Foundation/NSData.h"

#include <QStringList>
#include <QVariant>

#include <optional>

namespace korvane {

// Null for a value of any other type.
std::optional<QString> stringValue(const QVariant &value);
std::optional<NSData> dataValue(const QVariant &value); // also of a QByteArray
// The texts of a list; its elements of other types are left out.
std::optional<QStringList> stringListValue(const QVariant &value);

} // namespace korvane
