// A home folder of a test's own, with the environment pointing at it.
#pragma once

#include <QByteArray>
#include <QTemporaryDir>

#include <map>

namespace korvane::test {

// Sets HOME and the XDG folders while it lives, then puts the environment back. setenv() changes any other variable
// likewise.
class TemporaryHome {
public:
    TemporaryHome();
    ~TemporaryHome();

    QString path(const QString &below = {}) const { return _folder.filePath(below); }
    void setEnvironment(const QByteArray &name, const QByteArray &value);

    // Makes a file below the home folder and returns its path.
    QByteArray file(const QString &name, const QByteArray &contents) const;

private:
    QTemporaryDir _folder;
    std::map<QByteArray, QByteArray> _before;
};

// A small JPEG file's bytes, followed by varied bytes up to the length; the seed makes them different.
QByteArray jpegOfSize(qint64 length, quint32 seed = 1);

} // namespace korvane::test
