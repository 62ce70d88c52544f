// The XML parser and the request's parts that carry answers.
#include "Platform/Foundation/NSXMLParser.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace korvane;

namespace {

struct Events : NSXMLParserDelegate {
    QStringList seen;
    void parserDidStartElement(NSXMLParser &, const QString &name, const QHash<QString, QString> &attributes) override {
        seen.append(u'<' + name + (attributes.isEmpty() ? QString() : u' ' + attributes.cbegin().value()));
    }
    void parserFoundCharacters(NSXMLParser &, const QString &text) override { seen.append(text); }
    void parserDidEndElement(NSXMLParser &, const QString &name) override { seen.append(u'>' + name); }
    void parserParseErrorOccurred(NSXMLParser &) override { seen.append(QStringLiteral("!")); }
};

QString eventsOf(const std::optional<NSData> &data) {
    Events events;
    NSXMLParser parser(data);
    parser.setDelegate(&events);
    const bool ok = parser.parse();
    EXPECT_EQ(ok, !events.seen.contains(QStringLiteral("!")));
    return events.seen.join(u'|');
}

} // namespace

TEST(XMLParser, TellsTheEventsInOrder) {
    EXPECT_EQ(eventsOf(NSData("<a x=\"1&amp;2\">t<![CDATA[<&>]]><n:b xmlns:n=\"u\"/></a>")),
              QStringLiteral("<a 1&2|t|<&>|<n:b u|>n:b|>a"));
}

TEST(XMLParser, ReportsOneErrorAndNeverHangsOnAHostileDocument) {
    QByteArray bomb = "<!DOCTYPE b [<!ENTITY a \"aaaaaaaaaa\">";
    for (char c = 'b'; c < 'k'; ++c)
        bomb += QByteArray("<!ENTITY ") + c + " \"" + QByteArray("&X;").replace('X', char(c - 1)).repeated(10) + "\">";
    bomb += "]><b>&j;</b>";
    for (const QByteArray &document :
         {QByteArray(), QByteArray("not xml"), QByteArray("<a><b></a>"), QByteArray("<a>"), bomb,
          QByteArray("\xff\xfe\x00\x01binary", 10), QByteArray("<a/><b/>"), QByteArray("<a>").repeated(1000)}) {
        const QString events = eventsOf(NSData(document));
        EXPECT_LT(events.size(), 1000);
        EXPECT_EQ(events.count(u'!'), 1) << document.left(30).toStdString() << " gave "
                                         << events.left(100).toStdString();
    }
    EXPECT_EQ(eventsOf(std::nullopt), QStringLiteral("!"));
    EXPECT_EQ(eventsOf(NSData("<!DOCTYPE a [<!ENTITY e SYSTEM \"file:///etc/passwd\">]><a>&e;</a>"))
                  .count(QStringLiteral("root")),
              0);
}
