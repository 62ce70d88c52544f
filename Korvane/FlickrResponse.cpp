// The answer to a photo upload.
#include "Korvane/FlickrResponse.h"

#include "Platform/Foundation/NSNumber.h"

#include <QStringDecoder>

namespace korvane {

const QString FlickrResponseErrorDomain = QStringLiteral("FlickrResponseErrorDomain");

namespace {

std::optional<QString> textOf(const std::optional<NSData> &body) {
    if (!body) return std::nullopt;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(body->bytes());
    return decoder.hasError() ? std::nullopt : std::optional(text);
}

std::optional<QString> attribute(const QHash<QString, QString> &attributes, const QString &name) {
    const auto found = attributes.find(name);
    return found == attributes.end() ? std::nullopt : std::optional(*found);
}

} // namespace

std::shared_ptr<FlickrResponse> FlickrResponse::responseWithData(const std::optional<NSData> &body) {
    return initWithData(body);
}

std::shared_ptr<FlickrResponse> FlickrResponse::initWithData(const std::optional<NSData> &body) {
    const auto response = std::make_shared<FlickrResponse>();
    response->_initWithData(body);
    return response;
}

void FlickrResponse::_initWithData(const std::optional<NSData> &body) {
    NSXMLParser parser(body);
    parser.setDelegate(this);
    parser.parse();
    if (!_workaround) return;
    success = false;
    errorDescription = textOf(body);
    errorCode = -1;
}

void FlickrResponse::parserDidStartElement(NSXMLParser &, const QString &element,
                                           const QHash<QString, QString> &attributes) {
    if (element == QLatin1String("rsp")) {
        success = attributes.value(QStringLiteral("stat")) == QLatin1String("ok");
    } else if (element == QLatin1String("err")) {
        success = false;
        errorCode = intValue(attributes.value(QStringLiteral("code")));
        errorDescription = attribute(attributes, QStringLiteral("msg"));
    } else if (element == QLatin1String("photoid")) {
        success = true;
        _partialPhotoIDString = QString();
    }
}

void FlickrResponse::parserFoundCharacters(NSXMLParser &, const QString &characters) {
    if (_partialPhotoIDString) *_partialPhotoIDString += characters;
}

void FlickrResponse::parserDidEndElement(NSXMLParser &, const QString &element) {
    if (element != QLatin1String("photoid")) return;
    photoID = integerValue(_partialPhotoIDString.value_or(QString()));
    _partialPhotoIDString.reset();
}

} // namespace korvane
