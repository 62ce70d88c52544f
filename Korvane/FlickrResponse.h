// The answer to a photo upload.
#pragma once

#include "Platform/Foundation/NSXMLParser.h"

#include <memory>

namespace korvane {

extern const QString FlickrResponseErrorDomain;

// Flickr's XML answer (https://www.flickr.com/services/api/upload.api.html): "rsp" with "photoid", or with "err".
class FlickrResponse : private NSXMLParserDelegate {
public:
    // Parses the body before it returns.
    static std::shared_ptr<FlickrResponse> responseWithData(const std::optional<NSData> &body);
    static std::shared_ptr<FlickrResponse> initWithData(const std::optional<NSData> &body);

    bool isSuccess() const { return success; }

    bool success = false;
    qint64 photoID = 0;                      // 0 when none was read
    std::optional<QString> errorDescription; // Flickr's message; the whole body when it is not XML
    qint32 errorCode = 0;                    // Flickr's code; -1 when the body is not XML

private:
    void _initWithData(const std::optional<NSData> &body);
    void parserDidStartElement(NSXMLParser &, const QString &element,
                               const QHash<QString, QString> &attributes) override;
    void parserFoundCharacters(NSXMLParser &, const QString &characters) override;
    void parserDidEndElement(NSXMLParser &, const QString &element) override;
    void parserParseErrorOccurred(NSXMLParser &) override { _workaround = true; }

    std::optional<QString> _partialPhotoIDString;
    bool _workaround = false;
};

} // namespace korvane
