// The tables of the upload queue's database.
#pragma once

#include <QStringList>

namespace korvane {

namespace UploadSchema {

inline constexpr int version = 2;

// What brings a database of an earlier version up to date, 0 being an empty one; empty for a version that is not known.
QStringList statementsFrom(int version);

} // namespace UploadSchema

} // namespace korvane
