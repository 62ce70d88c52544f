// One photo to be posted to Flickr: its record.
#include "Korvane/FlickrPost.h"

#include "Platform/Foundation/NSNumber.h"

namespace korvane {

const QString FlickrPostErrorDomain = QStringLiteral("FlickrPostErrorDomain");

namespace {

std::optional<QString> text(const QVariant &value) {
    return value.typeId() == QMetaType::QString ? std::optional(value.toString()) : std::nullopt;
}

std::optional<NSData> data(const QVariant &value) {
    if (value.canConvert<NSData>() && value.typeId() == qMetaTypeId<NSData>()) return value.value<NSData>();
    return value.typeId() == QMetaType::QByteArray ? std::optional(NSData(value.toByteArray())) : std::nullopt;
}

std::optional<QStringList> texts(const QVariant &value) {
    if (value.typeId() == QMetaType::QStringList) return value.toStringList();
    if (value.typeId() != QMetaType::QVariantList) return std::nullopt;
    QStringList list;
    for (const QVariant &element : value.toList())
        if (element.typeId() == QMetaType::QString) list.append(element.toString());
    return list;
}

} // namespace

std::shared_ptr<FlickrPost> FlickrPost::init() {
    return std::shared_ptr<FlickrPost>(new FlickrPost);
}

std::shared_ptr<FlickrPost> FlickrPost::initWithDictionary(const QVariantMap &dictionary) {
    const auto post = init();
    post->_initWithDictionary(dictionary);
    return post;
}

QVariantMap FlickrPost::serializedDictionary() const {
    QVariantMap dictionary;
    if (assetURL) dictionary.insert(QStringLiteral("assetURL"), assetURL->absoluteString());
    if (photoData) dictionary.insert(QStringLiteral("photoData"), QVariant::fromValue(*photoData));
    if (title) dictionary.insert(QStringLiteral("title"), *title);
    if (postDescription) dictionary.insert(QStringLiteral("description"), *postDescription);
    if (tags) dictionary.insert(QStringLiteral("tags"), *tags);
    dictionary.insert(QStringLiteral("photoSetID"), photoSetID);
    dictionary.insert(QStringLiteral("visibility"), qint32(visibility));
    dictionary.insert(QStringLiteral("safetyLevel"), safetyLevel);
    dictionary.insert(QStringLiteral("contentType"), contentType);
    dictionary.insert(QStringLiteral("hidden"), hidden);
    return dictionary;
}

void FlickrPost::_initWithDictionary(const QVariantMap &dictionary) {
    const auto value = [&](const char *key) { return dictionary.value(QLatin1String(key)); };
    if (const auto url = text(value("assetURL"))) assetURL = NSURL::URLWithString(*url);
    photoData = data(value("photoData"));
    title = text(value("title"));
    postDescription = text(value("description"));
    tags = texts(value("tags"));
    visibility = quint32(intValue(value("visibility")));
    safetyLevel = intValue(value("safetyLevel"));
    contentType = intValue(value("contentType"));
    hidden = boolValue(value("hidden"));
    photoSetID = integerValue(value("photoSetID"));
}

} // namespace korvane
