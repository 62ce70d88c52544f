// An upload as a row of the queue's database.
#pragma once

#include "Service/UploadJob.h"

#include <QSqlQuery>
#include <QStringList>

namespace korvane {

namespace UploadRow {

// That hold the fields of a job, but for "id", which the database gives.
extern const QStringList columns;

// In the order of the columns.
QVariantList valuesOfJob(const UploadJob &job);
// The columns of texts take no NULL, which is how a null text would be bound.
QString textOf(const QString &text);
QVariant bytesOf(const std::optional<VimeoCheckpoint> &video);
// row: "id" and then the columns.
UploadJob jobOfRow(const QSqlQuery &row);

} // namespace UploadRow

} // namespace korvane
