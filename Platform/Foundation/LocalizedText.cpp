// What Korvane tells people beside the texts of its pages.
#include "Platform/Foundation/LocalizedText.h"

#include "Platform/Foundation/NSBundle.h"

#include <QLocale>

namespace korvane {
namespace {

QString look(const char *english, int count) {
    const QString key = QString::fromUtf8(english);
    return NSBundle::localizedString(key, key, QStringLiteral("Errors"), count);
}

} // namespace

QString localizedText(const char *english) {
    return look(english, -1);
}

QString localizedCount(const char *english, qint64 count) {
    return look(english, int(count)).replace(QStringLiteral("%n"), QLocale().toString(count));
}

} // namespace korvane
