// The string tables, in all languages, against the keys that the code looks up.
#include "Tests/Support/Testing.h"

#include <QDirIterator>
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

// The keys in the sources whose names begin with the table's.
QSet<QString> keysInSources(const QString &table) {
    static const QRegularExpression key(QStringLiteral("QStringLiteral\\(\"([A-Z]+(?:_[A-Z]+)*)\"\\)"));
    QSet<QString> keys;
    const QDir root(QStringLiteral(KORVANE_SOURCE));
    for (const QString &folder : {QStringLiteral("."), QStringLiteral("Korvane")})
        for (const QFileInfo &file : QDir(root.filePath(folder)).entryInfoList({table + QStringLiteral("*.cpp")}))
            keys += found(key, contents(file.filePath()));
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
