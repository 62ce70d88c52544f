// A home folder of a test's own, and files to put into it.
#pragma once

#include <QByteArray>
#include <QTemporaryDir>

#include <map>

namespace korvane::test {

// Sets HOME and the XDG folders while it lives, then puts the environment back. setEnvironment() changes any other
// variable likewise; a null value removes it.
class TemporaryHome {
public:
    TemporaryHome();
    ~TemporaryHome();

    QString path(QAnyStringView below = {}) const { return _folder.filePath(below.toString()); }
    void setEnvironment(const QByteArray &name, const QByteArray &value);

    // Makes a file below the home folder, in place of one that is there, and returns its path.
    QByteArray file(QAnyStringView name, const QByteArray &contents) const;
    // Of a file below the home folder; empty if there is none.
    QByteArray contents(QAnyStringView name) const;

private:
    QTemporaryDir _folder;
    std::map<QByteArray, QByteArray> _before;
};

// A small JPEG file's bytes, followed by varied bytes up to the length; the seed makes them different.
QByteArray jpegOfSize(qint64 length, quint32 seed = 1);

// Bytes of no pattern, so that reordering shows; the seed makes them different.
QByteArray variedBytes(qint64 length, quint32 seed = 1);

// A picture file made by another program.
QByteArray dataPath(const char *name);
QByteArray dataBytes(const char *name);

// In hexadecimal digits.
QByteArray sha256Of(const QByteArray &bytes);

} // namespace korvane::test
