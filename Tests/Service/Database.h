// The queue's database as another program sees it.
#pragma once

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>
#include <QVariant>

#include <gtest/gtest.h>

namespace korvane::test {

// Runs the statements, and returns the first value of the last one's first row.
inline QVariant sql(const QString &path, const QStringList &statements) {
    const QString connection = QStringLiteral("beside");
    QVariant value;
    {
        auto database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        database.setDatabaseName(path);
        EXPECT_TRUE(database.open());
        QSqlQuery query(database);
        for (const QString &statement : statements)
            EXPECT_TRUE(query.exec(statement)) << query.lastError().text().toStdString();
        if (query.next()) value = query.value(0);
    }
    QSqlDatabase::removeDatabase(connection);
    return value;
}

} // namespace korvane::test
