// The answer to "flickr.photosets.getList".
#pragma once

#include "Korvane/FlickrPhotoSet.h"
#include "Platform/Foundation/NSXMLParser.h"

#include <memory>
#include <vector>

namespace korvane {

// A failed call yields the no-set entry alone; a body that breaks off yields what stood before the break.
class FlickrPhotoSetResponse : private NSXMLParserDelegate {
public:
    // Parses the body before it returns.
    static std::shared_ptr<FlickrPhotoSetResponse> responseWithData(const std::optional<NSData> &body);
    static std::shared_ptr<FlickrPhotoSetResponse> initWithData(const std::optional<NSData> &body);

    // What Flickr says of the call: false without a message where the body says nothing of the kind.
    bool isSuccess() const { return _success; }
    const std::optional<QString> &errorDescription() const { return _errorDescription; }

    std::vector<FlickrPhotoSet> photoSets; // the no-set entry first, then the user's sets in the answer's order
    qint64 stage = 0;                      // what the characters belong to: 0 nothing, 1 a title, 2 a description

private:
    void _initWithData(const std::optional<NSData> &body);
    void parserDidStartElement(NSXMLParser &, const QString &element,
                               const QHash<QString, QString> &attributes) override;
    void parserFoundCharacters(NSXMLParser &, const QString &characters) override;
    void parserDidEndElement(NSXMLParser &, const QString &element) override;

    bool _success = false;
    std::optional<QString> _errorDescription;
    std::optional<FlickrPhotoSet> _currentPhotoSet;
    std::optional<QString> _dataString;
};

} // namespace korvane
