#include "StandIn/FileHash.h"

#include <QCryptographicHash>
#include <QFile>

namespace standin {

QByteArray sha256OfFile(const QString &path) {
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (!file.open(QIODevice::ReadOnly) || !hash.addData(&file)) return {};
    return hash.result().toHex();
}

} // namespace standin
