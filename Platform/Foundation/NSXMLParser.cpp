// An event-driven XML parser.
#include "Platform/Foundation/NSXMLParser.h"

#include <QXmlStreamReader>

namespace korvane {
namespace {

constexpr int deepestElement = 100; // the reader keeps every open element in memory

} // namespace

bool NSXMLParser::parse() {
    QXmlStreamReader reader(_data ? _data->bytes() : QByteArray());
    reader.setNamespaceProcessing(false);
    int depth = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement: {
            if (++depth > deepestElement) reader.raiseError(QStringLiteral("elements are nested too deeply"));
            QHash<QString, QString> attributes;
            for (const QXmlStreamAttribute &attribute : reader.attributes())
                attributes.insert(attribute.qualifiedName().toString(), attribute.value().toString());
            if (_delegate) _delegate->parserDidStartElement(*this, reader.qualifiedName().toString(), attributes);
            break;
        }
        case QXmlStreamReader::Characters:
            if (_delegate) _delegate->parserFoundCharacters(*this, reader.text().toString());
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            if (_delegate) _delegate->parserDidEndElement(*this, reader.qualifiedName().toString());
            break;
        default:
            break;
        }
    }
    if (!reader.hasError()) return true;
    if (_delegate) _delegate->parserParseErrorOccurred(*this);
    return false;
}

} // namespace korvane
