// How texts, data and lists in property-list values are read.
#include "Platform/Foundation/PropertyList.h"

namespace korvane {

std::optional<QString> stringValue(const QVariant &value) {
    return value.typeId() == QMetaType::QString ? std::optional(value.toString()) : std::nullopt;
}

std::optional<NSData> dataValue(const QVariant &value) {
    if (value.typeId() == qMetaTypeId<NSData>()) return value.value<NSData>();
    return value.typeId() == QMetaType::QByteArray ? std::optional(NSData(value.toByteArray())) : std::nullopt;
}

std::optional<QStringList> stringListValue(const QVariant &value) {
    if (value.typeId() == QMetaType::QStringList) return value.toStringList();
    if (value.typeId() != QMetaType::QVariantList) return std::nullopt;
    QStringList list;
    for (const QVariant &element : value.toList())
        if (const auto text = stringValue(element)) list.append(*text);
    return list;
}

} // namespace korvane
