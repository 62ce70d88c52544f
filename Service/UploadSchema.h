// The tables of the upload queue's database.
#pragma once

#include <QStringList>

namespace korvane {

namespace UploadSchema {

inline constexpr int version = 2;

// What makes an empty database one of this version.
const QStringList &statements();

} // namespace UploadSchema

} // namespace korvane
