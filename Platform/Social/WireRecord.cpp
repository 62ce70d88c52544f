// How records cross the bus: property-list values, large data as ranges of one file.
#include "Platform/Social/WireRecord.h"

#include "Platform/Foundation/LocalizedText.h"
#include "Platform/Social/DataFile.h"
#include "Platform/Social/RemoteServiceError.h"
#include "Platform/Social/SLAttachment.h"

#include <QDBusMetaType>
#include <QDBusVariant>

namespace korvane {
namespace {

NSError unusable(const QString &text) {
    return NSError::errorWithDescription(RemoteServiceErrorDomain, RemoteServiceErrorUnusableRecord, text);
}

// Turns values into those that go on the bus and counts what they take there.
class Encoder {
public:
    explicit Encoder(QString folder) : _folder(std::move(folder)) {}

    std::optional<QVariantMap> record(const QVariantMap &record, std::optional<NSError> *error) {
        QVariantMap result;
        for (auto it = record.cbegin(); it != record.cend(); ++it) {
            _key = it.key();
            if (const auto encoded = _value(it.value(), error))
                result.insert(it.key(), *encoded);
            else
                return std::nullopt;
            _size += it.key().size() + 16;
        }
        if (_size > WireRecord::messageLimit) {
            setError(error, unusable(localizedText("Too much to share at once; share fewer items.")));
            return std::nullopt;
        }
        return result;
    }

    FileDescriptor finish(std::optional<NSError> *error) { return _file ? _file->finish(error) : FileDescriptor(); }

private:
    std::optional<QVariant> _value(const QVariant &value, std::optional<NSError> *error) {
        if (value.typeId() == qMetaTypeId<NSData>()) return _data(value.value<NSData>(), error);
        switch (value.typeId()) {
        case QMetaType::QByteArray:
            return _data(NSData(value.toByteArray()), error);
        case QMetaType::QString:
            return _texts({value.toString()}, error) ? std::optional(value) : std::nullopt;
        case QMetaType::QStringList:
            return _texts(value.toStringList(), error) ? std::optional(value) : std::nullopt;
        case QMetaType::Bool:
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::LongLong:
        case QMetaType::ULongLong:
        case QMetaType::Double:
            return value;
        default:
            setError(error, unusable(localizedText("\"%1\" holds a value of type %2, which cannot be shared.", _key,
                                                   QLatin1String(value.typeName()))));
            return std::nullopt;
        }
    }

    bool _texts(const QStringList &texts, std::optional<NSError> *error) {
        for (const QString &text : texts) {
            _size += text.toUtf8().size();
            if (!text.contains(QChar::Null)) continue;
            setError(error, unusable(localizedText("\"%1\" holds a NUL character; remove it.", _key)));
            return false;
        }
        return true;
    }

    std::optional<QVariant> _data(const NSData &data, std::optional<NSError> *error) {
        if (data.length() <= _inlineLeft) {
            _inlineLeft -= data.length();
            const QByteArray bytes = data.bytes();
            if (bytes.size() == data.length() && data.isIntact()) return bytes;
            setError(error, SLAttachment::changedError(data));
            return std::nullopt;
        }
        if (!_file) _file = DataFile::create(_folder, error);
        if (!_file) return std::nullopt;
        const auto offset = _file->append(data, error);
        if (!offset) return std::nullopt;
        return QVariant::fromValue(DataRange{quint64(*offset), quint64(data.length())});
    }

    QString _folder;
    std::optional<DataFile> _file;
    QString _key;
    qint64 _inlineLeft = WireRecord::inlineDataLimit;
    qint64 _size = 0;
};

} // namespace

QDBusArgument &operator<<(QDBusArgument &argument, const DataRange &range) {
    argument.beginStructure();
    argument << range.offset << range.length;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, DataRange &range) {
    argument.beginStructure();
    argument >> range.offset >> range.length;
    argument.endStructure();
    return argument;
}

void WireRecord::registerTypes() {
    static const int registered = [] {
        qDBusRegisterMetaType<QList<QVariantMap>>();
        return qDBusRegisterMetaType<DataRange>().id();
    }();
    Q_UNUSED(registered);
}

std::optional<WireRecord::Message> WireRecord::encode(const QVariantList &records, const QString &folder,
                                                      std::optional<NSError> *error) {
    Message message;
    Encoder encoder(folder);
    std::optional<NSError> failure;
    for (const QVariant &record : records) {
        const auto encoded = encoder.record(record.toMap(), &failure);
        if (!encoded) break;
        message.records.append(*encoded);
    }
    if (!failure) message.dataFile = encoder.finish(&failure);
    setError(error, failure);
    return failure ? std::nullopt : std::optional(std::move(message));
}

std::optional<QVariantMap> WireRecord::decode(const QVariantMap &record,
                                              const std::shared_ptr<const FileDescriptor> &dataFile,
                                              std::optional<NSError> *error) {
    const qint64 available = dataFile ? FileIdentity::ofDescriptor(dataFile->get()).value_or(FileIdentity{}).size : -1;
    QVariantMap result;
    for (auto it = record.cbegin(); it != record.cend(); ++it) {
        if (it->typeId() < QMetaType::User) result.insert(it.key(), *it);
        if (it->typeId() != qMetaTypeId<QDBusArgument>()) continue;
        const auto argument = it->value<QDBusArgument>();
        if (argument.currentSignature() != QLatin1String("(tt)")) continue;
        const auto range = qdbus_cast<DataRange>(argument);
        if (available < 0 || range.length > quint64(available) || range.offset > quint64(available) - range.length) {
            const QString text =
                localizedText("The data of \"%1\" lies outside of the file that came with it.", it.key());
            setError(error,
                     NSError::errorWithDescription(RemoteServiceErrorDomain, RemoteServiceErrorUnusableData, text));
            return std::nullopt;
        }
        result.insert(it.key(),
                      QVariant::fromValue(NSData::dataWithFile(dataFile, qint64(range.offset), qint64(range.length))));
    }
    return result;
}

} // namespace korvane
