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
// row: "id" and then the columns.
UploadJob jobOfRow(const QSqlQuery &row);

} // namespace UploadRow

} // namespace korvane
