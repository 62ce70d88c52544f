// How the queue keeps a post's record.
#include "Service/RecordCodec.h"

#include "Platform/Foundation/NSData.h"

#include <QCborArray>
#include <QCborMap>
#include <QCborValue>
#include <QStringList>

namespace korvane {
namespace {

// A tag of the first-come range of RFC 8949, for [offset, length] in the upload's spool file.
constexpr QCborTag rangeTag{0x6b72};

QCborValue encodedData(const NSData &data, const std::shared_ptr<const FileDescriptor> &dataFile) {
    if (data.file() && data.file() == dataFile)
        return QCborValue(rangeTag, QCborArray{data.fileOffset(), data.length()});
    return data.bytes();
}

QCborValue encodedTexts(const QVariantList &list) {
    QCborArray texts;
    for (const QVariant &element : list)
        if (element.typeId() == QMetaType::QString) texts.append(element.toString());
    return texts;
}

QCborValue encodedValue(const QVariant &value, const std::shared_ptr<const FileDescriptor> &dataFile) {
    if (value.typeId() == qMetaTypeId<NSData>()) return encodedData(value.value<NSData>(), dataFile);
    switch (value.typeId()) {
    case QMetaType::QString:
        return value.toString();
    case QMetaType::QByteArray:
        return value.toByteArray();
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::Double:
        return value.toDouble();
    case QMetaType::QStringList:
        return QCborArray::fromStringList(value.toStringList());
    case QMetaType::QVariantList:
        return encodedTexts(value.toList());
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return value.toLongLong();
    default:
        return QCborValue(QCborValue::Undefined);
    }
}

QVariant decodedValue(const QCborValue &value, const std::shared_ptr<const FileDescriptor> &dataFile) {
    if (value.isTag() && value.tag() == rangeTag && dataFile) {
        const QCborArray range = value.taggedValue().toArray();
        return QVariant::fromValue(NSData::dataWithFile(dataFile, range.at(0).toInteger(), range.at(1).toInteger()));
    }
    if (value.isArray()) {
        QStringList texts;
        for (const QCborValue &element : value.toArray())
            texts.append(element.toString());
        return texts;
    }
    return value.isTag() ? QVariant() : value.toVariant();
}

} // namespace

QByteArray RecordCodec::encode(const QVariantMap &record, const std::shared_ptr<const FileDescriptor> &dataFile) {
    QCborMap map;
    for (auto it = record.cbegin(); it != record.cend(); ++it)
        if (const QCborValue value = encodedValue(it.value(), dataFile); !value.isUndefined())
            map.insert(it.key(), value);
    return QCborValue(map).toCbor();
}

QVariantMap RecordCodec::decode(const QByteArray &bytes, const std::shared_ptr<const FileDescriptor> &dataFile) {
    QVariantMap record;
    const QCborMap map = QCborValue::fromCbor(bytes).toMap();
    for (auto it = map.cbegin(); it != map.cend(); ++it)
        if (const QVariant value = decodedValue(it.value(), dataFile); value.isValid())
            record.insert(it.key().toString(), value);
    return record;
}

} // namespace korvane
