// How records cross the bus: property-list values, large data as ranges of one file.
#pragma once

#include "Platform/Foundation/FileDescriptor.h"
#include "Platform/Foundation/NSError.h"

#include <QDBusArgument>
#include <QList>
#include <QVariantList>
#include <QVariantMap>

#include <memory>
#include <optional>

namespace korvane {

// Stands for data in a record on the bus, D-Bus type (tt): a range of bytes in the message's data file.
struct DataRange {
    quint64 offset = 0;
    quint64 length = 0;
};

QDBusArgument &operator<<(QDBusArgument &argument, const DataRange &range);
const QDBusArgument &operator>>(const QDBusArgument &argument, DataRange &range);

namespace WireRecord {

// Data above this many bytes a message leaves the bus and travels in the file.
inline constexpr qint64 inlineDataLimit = 64 * 1024;
// Everything else in a message; a larger batch is refused.
inline constexpr qint64 messageLimit = 32 * 1024 * 1024;

struct Message {
    QList<QVariantMap> records;
    FileDescriptor dataFile; // open for reading; none if all data fitted in the records
};

// Makes the registered D-Bus types known to Qt. Thread: any; before the first message.
void registerTypes();

// Records with only the values that D-Bus carries unharmed, their data in a file in the folder. Null, with an error
// that names the record and the key, if a value is of no property-list type, a text holds a NUL, or all is too large.
std::optional<Message> encode(const QVariantList &records, const QString &folder, std::optional<NSError> *error);

// The record as it was before it was sent; data ranges become data of the file. Values of other types are dropped: they
// count as missing. Null, with an error, if a range lies outside of the file or there is no file.
std::optional<QVariantMap> decode(const QVariantMap &record, const std::shared_ptr<const FileDescriptor> &dataFile,
                                  std::optional<NSError> *error);

} // namespace WireRecord

} // namespace korvane

Q_DECLARE_METATYPE(korvane::DataRange)
