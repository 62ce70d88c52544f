// Localized texts of the library's string tables.
#include "Platform/Foundation/NSBundle.h"

#include <QLocale>
#include <QTranslator>

#include <map>
#include <memory>
#include <mutex>
#include <vector>

namespace korvane {
namespace {

// The user's language first, English behind it.
using Table = std::vector<std::unique_ptr<QTranslator>>;

Table loadTable(const QString &name) {
    Table table;
    for (const QLocale &locale : {QLocale(), QLocale(QLocale::English)}) {
        auto translator = std::make_unique<QTranslator>();
        if (translator->load(locale, name, QStringLiteral("_"), QStringLiteral(":/korvane/strings")))
            table.push_back(std::move(translator));
    }
    return table;
}

} // namespace

QString NSBundle::localizedString(const QString &key, const QString &value, const QString &table, int count) {
    static std::mutex mutex;
    static std::map<QString, Table> tables;
    const std::lock_guard lock(mutex);
    auto found = tables.find(table);
    if (found == tables.end()) found = tables.emplace(table, loadTable(table)).first;
    for (const auto &translator : found->second) {
        QString text = translator->translate(table.toUtf8().constData(), key.toUtf8().constData(), nullptr, count);
        if (!text.isNull()) return text;
    }
    return value;
}

} // namespace korvane
