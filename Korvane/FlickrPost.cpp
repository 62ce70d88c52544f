// One photo to be posted to Flickr: its record.
#include "Korvane/FlickrPost.h"

#include "Platform/Foundation/NSNumber.h"
#include "Platform/Foundation/PropertyList.h"

namespace korvane {

const QString FlickrPostErrorDomain = QStringLiteral("FlickrPostErrorDomain");

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
    if (const auto url = stringValue(value("assetURL"))) assetURL = NSURL::URLWithString(*url);
    photoData = dataValue(value("photoData"));
    title = stringValue(value("title"));
    postDescription = stringValue(value("description"));
    tags = stringListValue(value("tags"));
    visibility = quint32(intValue(value("visibility")));
    safetyLevel = intValue(value("safetyLevel"));
    contentType = intValue(value("contentType"));
    hidden = boolValue(value("hidden"));
    photoSetID = integerValue(value("photoSetID"));
}

} // namespace korvane
