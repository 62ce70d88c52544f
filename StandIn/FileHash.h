// SHA-256 of a file, hexadecimal.
#pragma once

#include <QByteArray>
#include <QString>

namespace standin {

// Empty when the file cannot be read.
QByteArray sha256OfFile(const QString &path);

} // namespace standin
