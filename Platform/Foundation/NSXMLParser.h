// An event-driven XML parser.
#pragma once

#include "Platform/Foundation/NSData.h"

#include <QHash>
#include <QString>

#include <optional>

namespace korvane {

class NSXMLParser;

// Hears the events in document order. CDATA sections arrive as characters. Element names are those of the document,
// with any namespace prefix.
class NSXMLParserDelegate {
public:
    virtual ~NSXMLParserDelegate() = default;
    virtual void parserDidStartElement(NSXMLParser &, const QString &, const QHash<QString, QString> &) {}
    virtual void parserFoundCharacters(NSXMLParser &, const QString &) {}
    virtual void parserDidEndElement(NSXMLParser &, const QString &) {}
    virtual void parserParseErrorOccurred(NSXMLParser &) {}
};

// Entities declared in the document are expanded within narrow limits, external ones are never fetched.
class NSXMLParser {
public:
    // Null data is an empty document.
    explicit NSXMLParser(std::optional<NSData> data) : _data(std::move(data)) {}
    void setDelegate(NSXMLParserDelegate *delegate) { _delegate = delegate; }

    // Reads to the end or to the first error, of which the delegate hears once. Synchronous. False on an error.
    bool parse();

private:
    std::optional<NSData> _data;
    NSXMLParserDelegate *_delegate = nullptr;
};

} // namespace korvane
