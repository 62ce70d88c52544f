// The string tables, in all languages, against the keys that the code looks up.
#include "Platform/Foundation/NSBundle.h"
#include "Tests/Support/Testing.h"

#include <QDirIterator>
#include <QLocale>
#include <QRegularExpression>
#include <QSet>
#include <QTranslator>

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

// The keys that are looked up, one or a list at a time, in the sources whose names begin with the table's.
QSet<QString> keysInSources(const QString &table) {
    static const QRegularExpression lookUp(
        QStringLiteral("(?:\\blocalized\\w*\\(|\\btitles)\\s*\\{?\\s*((?:QStringLiteral\\(\"[A-Z_]+\"\\),?\\s*)+)"));
    static const QRegularExpression key(QStringLiteral("\"([A-Z_]+)\""));
    QSet<QString> keys;
    const QDir root(QStringLiteral(KORVANE_SOURCE));
    for (const QString &folder : {QStringLiteral("."), QStringLiteral("Korvane")})
        for (const QFileInfo &file : QDir(root.filePath(folder)).entryInfoList({table + QStringLiteral("*.cpp")}))
            for (const QString &list : found(lookUp, contents(file.filePath())))
                keys += found(key, list);
    return keys;
}

} // namespace

TEST(StringTables, HaveATextForEachKeyInEachLanguageAndNoKeyMore) {
    static const QRegularExpression source(QStringLiteral("<source>(.*)</source>"));
    for (const QString &table : {QStringLiteral("Flickr"), QStringLiteral("Vimeo")}) {
        const QSet<QString> keys = keysInSources(table);
        EXPECT_GT(keys.size(), 8);
        for (const QString &language : languages) {
            const QString name = QStringLiteral("%1_%2").arg(table, language);
            EXPECT_EQ(found(source, contents(QStringLiteral(KORVANE_SOURCE "/Resources/%1.ts").arg(name))), keys)
                << qPrintable(name);
            QTranslator translator;
            ASSERT_TRUE(translator.load(QStringLiteral(":/korvane/strings/%1.qm").arg(name)));
            for (const QString &key : keys) {
                const QString text = translator.translate(table.toUtf8().constData(), key.toUtf8().constData());
                EXPECT_FALSE(text.isEmpty()) << qPrintable(name + u' ' + key);
                EXPECT_EQ(text.count(QStringLiteral("%@")), key.endsWith(QStringLiteral("_FORMAT")) ? 1 : 0)
                    << qPrintable(name + u' ' + key);
            }
        }
    }
}

TEST(StringTablesDeathTest, SpeakTheUsersLanguageElseEnglish) {
    const std::pair<const char *, const char *> cases[] = {
        {"de_AT", "Alle"}, {"fr_CA", "Tout le monde"}, {"ja_JP", "全員"}, {"pt_BR", "Public"}, {"C", "Public"}};
    for (const auto &[locale, text] : cases) {
        const auto say = [&, name = locale] {
            QLocale::setDefault(QLocale(QString::fromLatin1(name)));
            const QString flickr = QStringLiteral("Flickr"), value = QStringLiteral("|");
            const QString said = NSBundle::localizedString(QStringLiteral("PUBLIC"), value, flickr) +
                                 NSBundle::localizedString(QStringLiteral("NO_SUCH_KEY"), value, flickr);
            fputs(qPrintable(said), stderr);
            _exit(0);
        };
        EXPECT_EXIT(say(), ::testing::ExitedWithCode(0), text + std::string("\\|$")) << locale;
    }
}
