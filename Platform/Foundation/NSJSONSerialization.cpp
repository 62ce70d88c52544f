// Property-list values as JSON text and back.
#include "Platform/Foundation/NSJSONSerialization.h"

#include "Platform/Foundation/LocalizedText.h"

#include <nlohmann/json.hpp>

#include <cmath>

namespace korvane {
namespace {

using nlohmann::json;

constexpr int deepest = 64; // deeper nesting is nobody's value, and both directions recurse

std::optional<QVariant> fromJSON(const json &value, int depth);

std::optional<QVariant> listFromJSON(const json &array, int depth) {
    QVariantList list;
    for (const json &element : array) {
        auto converted = fromJSON(element, depth);
        if (!converted) return std::nullopt;
        list.append(*std::move(converted));
    }
    return QVariant(list);
}

std::optional<QVariant> mapFromJSON(const json &object, int depth) {
    QVariantMap map;
    for (const auto &[key, element] : object.items()) {
        auto converted = fromJSON(element, depth);
        if (!converted) return std::nullopt;
        map.insert(QString::fromStdString(key), *std::move(converted));
    }
    return QVariant(map);
}

std::optional<QVariant> fromJSON(const json &value, int depth) {
    if (depth > deepest) return std::nullopt;
    switch (value.type()) {
    case json::value_t::object:
        return mapFromJSON(value, depth + 1);
    case json::value_t::array:
        return listFromJSON(value, depth + 1);
    case json::value_t::string:
        return QVariant(QString::fromStdString(value.get_ref<const std::string &>()));
    case json::value_t::boolean:
        return QVariant(value.get<bool>());
    case json::value_t::number_integer:
        return QVariant(qint64(value.get<std::int64_t>()));
    case json::value_t::number_float:
        return QVariant(value.get<double>());
    case json::value_t::number_unsigned: {
        const std::uint64_t number = value.get<std::uint64_t>();
        return number <= std::uint64_t(INT64_MAX) ? QVariant(qint64(number)) : QVariant(quint64(number));
    }
    default:
        return QVariant();
    }
}

std::optional<json> toJSON(const QVariant &value, int depth);

std::optional<json> listToJSON(const QVariantList &list, int depth) {
    json array = json::array();
    for (const QVariant &element : list) {
        auto converted = toJSON(element, depth);
        if (!converted) return std::nullopt;
        array.push_back(*std::move(converted));
    }
    return array;
}

std::optional<json> mapToJSON(const QVariantMap &map, int depth) {
    json object = json::object();
    for (auto element = map.begin(); element != map.end(); ++element) {
        auto converted = toJSON(*element, depth);
        if (!converted) return std::nullopt;
        object[element.key().toStdString()] = *std::move(converted);
    }
    return object;
}

std::optional<json> toJSON(const QVariant &value, int depth) {
    if (depth > deepest) return std::nullopt;
    switch (value.typeId()) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr:
        return json();
    case QMetaType::Bool:
        return json(value.toBool());
    case QMetaType::QString:
        return json(value.toString().toStdString());
    case QMetaType::QStringList:
    case QMetaType::QVariantList:
        return listToJSON(value.toList(), depth + 1);
    case QMetaType::QVariantMap:
    case QMetaType::QVariantHash:
        return mapToJSON(value.toMap(), depth + 1);
    case QMetaType::Double:
    case QMetaType::Float:
        if (!std::isfinite(value.toDouble())) return std::nullopt;
        return json(value.toDouble());
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return json(std::uint64_t(value.toULongLong()));
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return json(std::int64_t(value.toLongLong()));
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<QVariant> NSJSONSerialization::JSONObjectWithData(const QByteArray &text, QString *problem) {
    const auto fail = [problem](const QString &what) {
        if (problem) *problem = what;
        return std::nullopt;
    };
    try {
        auto value = fromJSON(json::parse(text.begin(), text.end()), 0);
        if (!value) return fail(localizedText("it is nested too deeply"));
        return value;
    } catch (const json::parse_error &error) {
        // The exception's own text quotes what was read, which may be a secret.
        return fail(localizedText("it is not JSON at byte %1", QString::number(error.byte)));
    } catch (const json::exception &) {
        return fail(localizedText("it holds a number that is out of range"));
    }
}

std::optional<QByteArray> NSJSONSerialization::dataWithJSONObject(const QVariant &value) {
    const auto converted = toJSON(value, 0);
    if (!converted) return std::nullopt;
    return QByteArray::fromStdString(converted->dump(2) + "\n");
}

} // namespace korvane
