// The answer to "flickr.photosets.getList".
#include "Korvane/FlickrPhotoSetResponse.h"

#include "Platform/Foundation/NSBundle.h"
#include "Platform/Foundation/NSNumber.h"

namespace korvane {
namespace {

FlickrPhotoSet photoSetOf(const QHash<QString, QString> &attributes) {
    const auto number = [&](const char16_t *name) {
        return integerValue(attributes.value(QStringView(name).toString()));
    };
    FlickrPhotoSet set;
    set.identifier = number(u"id");
    set.primaryPhotoID = number(u"primary");
    set.farmID = number(u"farm");
    set.serverID = number(u"server");
    if (const auto secret = attributes.find(QStringLiteral("secret")); secret != attributes.end()) set.secret = *secret;
    return set;
}

} // namespace

std::shared_ptr<FlickrPhotoSetResponse> FlickrPhotoSetResponse::responseWithData(const std::optional<NSData> &body) {
    return initWithData(body);
}

std::shared_ptr<FlickrPhotoSetResponse> FlickrPhotoSetResponse::initWithData(const std::optional<NSData> &body) {
    const auto response = std::make_shared<FlickrPhotoSetResponse>();
    response->_initWithData(body);
    return response;
}

void FlickrPhotoSetResponse::_initWithData(const std::optional<NSData> &body) {
    FlickrPhotoSet noSet;
    noSet.title = NSBundle::localizedString(QStringLiteral("NO_SET"), QString(), QStringLiteral("Flickr"));
    photoSets.push_back(noSet);
    NSXMLParser parser(body);
    parser.setDelegate(this);
    parser.parse();
}

void FlickrPhotoSetResponse::parserDidStartElement(NSXMLParser &, const QString &element,
                                                   const QHash<QString, QString> &attributes) {
    if (element == QLatin1String("rsp")) {
        _success = attributes.value(QStringLiteral("stat")) == QLatin1String("ok");
    } else if (element == QLatin1String("err")) {
        _success = false;
        _errorDescription = attributes.value(QStringLiteral("msg"));
    } else if (element == QLatin1String("photoset")) {
        _success = true;
        _currentPhotoSet = photoSetOf(attributes);
    } else if (element == QLatin1String("title") || element == QLatin1String("description")) {
        stage = element == QLatin1String("title") ? 1 : 2;
        _dataString = QString();
    }
}

void FlickrPhotoSetResponse::parserFoundCharacters(NSXMLParser &, const QString &characters) {
    if (stage != 0 && _dataString) *_dataString += characters;
}

void FlickrPhotoSetResponse::parserDidEndElement(NSXMLParser &, const QString &element) {
    if (element == QLatin1String("photoset")) {
        if (_currentPhotoSet) photoSets.push_back(*_currentPhotoSet);
        _currentPhotoSet.reset();
    } else {
        if (_currentPhotoSet && stage == 1) _currentPhotoSet->title = _dataString;
        if (_currentPhotoSet && stage == 2) _currentPhotoSet->photoSetDescription = _dataString;
        _dataString.reset();
    }
    stage = 0;
}

} // namespace korvane
