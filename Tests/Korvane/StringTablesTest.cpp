// The string tables, in all languages, against the keys that the code looks up.
#include "Platform/Foundation/LocalizedText.h"
#include "Platform/Foundation/NSBundle.h"
#include "Tests/Support/Testing.h"

#include <QDirIterator>
#include <QLocale>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

using namespace korvane;

namespace {

const QStringList languages{QStringLiteral("de"), QStringLiteral("en"), QStringLiteral("fr"), QStringLiteral("ja")};

QSet<QString> found(const QRegularExpression &pattern, const QString &text) {
    QSet<QString> all;
    for (auto match = pattern.globalMatch(text); match.hasNext();)
        all.insert(match.next().captured(1));
    return all;
}

QString contents(const QString &path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return QString::fromUtf8(file.readAll());
}

// The keys in the sources whose names begin with the table's: there, no other text is in capitals.
QSet<QString> keysInSources(const QString &table) {
    static const QRegularExpression key(QStringLiteral("\"([A-Z_]+)\""));
    QSet<QString> keys;
    for (const QString &folder : {QStringLiteral(KORVANE_SOURCE), QStringLiteral(KORVANE_SOURCE "/Korvane")})
        for (const QFileInfo &file : QDir(folder).entryInfoList({table + QStringLiteral("*.cpp")}))
            for (const QString &name : found(key, contents(file.filePath())))
                keys.insert(table + u'|' + name);
    return keys;
}

// One or more literals in a row, as a compiler joins them; QML joins them with a plus.
const QString literals = QStringLiteral("((?:\\s*\\+?\\s*\"(?:[^\"\\\\]|\\\\.)*\")+)");

QString joined(const QString &list) {
    static const QRegularExpression literal(QStringLiteral("\"((?:[^\"\\\\]|\\\\.)*)\""));
    QString text;
    for (auto match = literal.globalMatch(list); match.hasNext();)
        text += match.next().captured(1);
    return text.replace(QStringLiteral("\\n"), QStringLiteral("\n"))
        .replace(QStringLiteral("\\\""), QStringLiteral("\""));
}

// Behind their context, which is the file's name where all files do not share one.
QSet<QString> textsInSources(const QStringList &folders, const QString &function, const QString &context) {
    const QRegularExpression call(QStringLiteral("\\b(?:%1)").arg(function) + literals);
    QSet<QString> texts;
    for (const QString &folder : folders)
        for (QDirIterator files(QStringLiteral(KORVANE_SOURCE) + folder,
                                {QStringLiteral("*.cpp"), QStringLiteral("*.h"), QStringLiteral("*.qml")}, QDir::Files,
                                folder.isEmpty() ? QDirIterator::NoIteratorFlags : QDirIterator::Subdirectories);
             files.hasNext();) {
            const QFileInfo file(files.next());
            for (const QString &list : found(call, contents(file.filePath())))
                texts.insert((context.isEmpty() ? file.completeBaseName() : context) + u'|' + joined(list));
        }
    return texts;
}

// Each text behind its context with its translations: several where they depend on a number, none while unfinished.
QMap<QString, QStringList> translationsIn(const QString &name) {
    QMap<QString, QStringList> table;
    QXmlStreamReader reader(contents(QStringLiteral(KORVANE_SOURCE "/Resources/%1.ts").arg(name)));
    QString context, source;
    bool isFinished = false;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) continue;
        if (reader.name() == QLatin1String("name")) {
            context = reader.readElementText().section(QStringLiteral("::"), -1);
        } else if (reader.name() == QLatin1String("source")) {
            table[source = context + u'|' + reader.readElementText()];
        } else if (reader.name() == QLatin1String("translation")) {
            isFinished = !reader.attributes().hasAttribute(QLatin1String("type"));
            const QString text = reader.readElementText(QXmlStreamReader::IncludeChildElements);
            if (isFinished && !text.trimmed().isEmpty()) table[source].append(text);
        }
    }
    EXPECT_FALSE(reader.hasError()) << qPrintable(name);
    return table;
}

// "%1", "%L1", "%n"; a key stands for a text with one place where it says so.
QSet<QString> placesIn(const QString &text) {
    static const QRegularExpression place(QStringLiteral("(%L?[0-9n]|%@)"));
    return text.endsWith(QLatin1String("_FORMAT")) ? QSet{QStringLiteral("%@")} : found(place, text);
}

} // namespace

TEST(StringTables, HaveEachTextInEachLanguageAndNoneMore) {
    const QStringList all{QString(),
                          QStringLiteral("/CommandLine"),
                          QStringLiteral("/FrontEnd"),
                          QStringLiteral("/Korvane"),
                          QStringLiteral("/Platform"),
                          QStringLiteral("/Service"),
                          QStringLiteral("/ShareSheet")};
    const std::tuple<QString, QSet<QString>, int> tables[] = {
        {QStringLiteral("Flickr"), keysInSources(QStringLiteral("Flickr")), 8},
        {QStringLiteral("Vimeo"), keysInSources(QStringLiteral("Vimeo")), 8},
        {QStringLiteral("Sheet"),
         textsInSources({QStringLiteral("/ShareSheet")}, QStringLiteral("(?:qsTr|tr)\\(|translate\\(\\s*\"\\w+\","),
                        {}),
         80},
        {QStringLiteral("Errors"),
         textsInSources(all, QStringLiteral("localized(?:Text|Count)\\("), QStringLiteral("Errors")), 80}};
    for (const auto &[table, texts, least] : tables) {
        EXPECT_GT(texts.size(), least);
        for (const QString &language : languages) {
            const QString name = QStringLiteral("%1_%2").arg(table, language);
            const auto translations = translationsIn(name);
            const auto keys = translations.keys();
            EXPECT_EQ(texts - QSet(keys.begin(), keys.end()), QSet<QString>()) << qPrintable(name) << " lacks these";
            EXPECT_EQ(QSet(keys.begin(), keys.end()) - texts, QSet<QString>()) << qPrintable(name) << " is of old";
            for (auto it = translations.begin(); it != translations.end(); ++it) {
                EXPECT_FALSE(it->isEmpty()) << qPrintable(name + u' ' + it.key());
                for (const QString &text : *it)
                    EXPECT_EQ(placesIn(text), placesIn(it.key())) << qPrintable(name + u' ' + it.key());
            }
        }
    }
}

TEST(StringTablesDeathTest, SpeakTheUsersLanguageElseEnglish) {
    const std::pair<const char *, const char *> cases[] = {{"de_AT", "Alle, 1 Tag, 2 Tage und %1"},
                                                           {"fr_CA", "Tout le monde, 1 jour, 2 jours et %1"},
                                                           {"ja_JP", "全員, 1日, 2日と%1"},
                                                           {"pt_BR", "Public, 1 day, 2 days and %1"},
                                                           {"C", "Public, 1 day, 2 days and %1"}};
    for (const auto &[locale, text] : cases) {
        const auto say = [&, name = locale] {
            QLocale::setDefault(QLocale(QString::fromLatin1(name)));
            const QString flickr = QStringLiteral("Flickr"), value = QStringLiteral("|");
            const QStringList said{NSBundle::localizedString(QStringLiteral("PUBLIC"), value, flickr),
                                   localizedCount("%n day(s)", 1),
                                   localizedText("%1 and %2", localizedCount("%n day(s)", 2), QStringLiteral("%1")) +
                                       NSBundle::localizedString(QStringLiteral("NO_SUCH_KEY"), value, flickr)};
            fputs(qPrintable(said.join(QStringLiteral(", "))), stderr);
            _exit(0);
        };
        EXPECT_EXIT(say(), ::testing::ExitedWithCode(0), text + std::string("\\|$")) << locale;
    }
}
