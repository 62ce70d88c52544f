// Decoding and encoding of pictures in a process of their own, by the program korvane-picture.
#include "Platform/ImageIO/PictureProgram.h"

#include "Platform/Foundation/ChildProcess.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/LocalizedText.h"

#include <QFile>

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>

namespace korvane {

const QString PictureErrorDomain = QStringLiteral("PictureErrorDomain");

namespace {

constexpr std::chrono::minutes longestRun(11); // the program gives up by itself after ten
constexpr int exitPictureUnusable = 1;
constexpr int exitOutputFailed = 3;
constexpr std::chrono::seconds longestThumbnail(30);
constexpr qint64 copyPiece = 256 * 1024;

// Invalid, with errno, if there can be none.
FileDescriptor unnamedFile() {
    const QByteArray folder = QFile::encodeName(NSTemporaryDirectory());
    FileDescriptor file(::open(folder.constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600));
    if (file || (errno != EOPNOTSUPP && errno != EISDIR && errno != EINVAL)) return file;
    QByteArray name = folder + "/picture-XXXXXX";
    FileDescriptor named(::mkostemp(name.data(), O_CLOEXEC));
    if (named) ::unlink(name.constData());
    return named;
}

bool writeAll(int descriptor, const char *bytes, qint64 length) {
    while (length > 0) {
        const ssize_t count = ::write(descriptor, bytes, size_t(length));
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return false;
        bytes += count;
        length -= count;
    }
    return true;
}

FileDescriptor copyOf(const NSData &data) {
    FileDescriptor file = unnamedFile();
    QByteArray buffer(std::min(copyPiece, data.length()), Qt::Uninitialized);
    for (qint64 done = 0; file && done < data.length();) {
        const qint64 count = data.getBytes(buffer.data(), done, buffer.size());
        if (count == 0) errno = EIO; // the file has become shorter
        if (count <= 0 || !writeAll(file.get(), buffer.constData(), count)) return {};
        done += count;
    }
    if (file) ::lseek(file.get(), 0, SEEK_SET);
    return file;
}

// A descriptor of the data's own file with a position of its own, since several children may read it at once; a copy
// where the data is not just a whole file.
FileDescriptor fileFor(const NSData &data) {
    const auto &file = data.file();
    struct stat status;
    if (file && data.fileOffset() == 0 && ::fstat(file->get(), &status) == 0 && status.st_size == data.length()) {
        const QByteArray path = "/proc/self/fd/" + QByteArray::number(file->get());
        FileDescriptor reopened(::open(path.constData(), O_RDONLY | O_CLOEXEC));
        if (reopened) return reopened;
    }
    return copyOf(data);
}

NSError errorOf(const ChildProcess::Result &result) {
    if (result.ending == ChildProcess::Exited && result.status == exitOutputFailed)
        return NSError::errorWithDescription(NSPOSIXErrorDomain, EIO,
                                             QString::fromUtf8(result.standardError.trimmed()));
    const bool explained = result.ending == ChildProcess::Exited && result.status == exitPictureUnusable;
    QByteArray text = result.standardError.trimmed();
    if (text.startsWith("korvane-picture: ")) text.remove(0, text.indexOf(' ') + 1);
    return NSError::errorWithDescription(
        PictureErrorDomain, PictureErrorUnusable,
        explained ? QString::fromUtf8(text)
                  : localizedText("the picture cannot be decoded (%1)", result.description()));
}

// How long a run may take, and who may end it.
struct Terms {
    std::chrono::milliseconds timeLimit = longestRun;
    std::stop_token cancellation;
    int niceness = 0;
};

// The error, if there was one.
std::optional<NSError> runOn(const NSData &picture, const QByteArrayList &arguments, int output,
                             const Terms &terms = {}) {
    const FileDescriptor input = fileFor(picture);
    if (!input) return NSError::errorWithErrno(errno, localizedText("the picture's file"));
    ChildProcess program("korvane-picture", arguments);
    program.setStandardInput(input.get());
    program.setStandardOutput(output);
    program.setEnvironmentVariable("TMPDIR", QFile::encodeName(NSTemporaryDirectory()));
    program.setTimeLimit(terms.timeLimit);
    program.setCancellation(terms.cancellation);
    if (terms.niceness > 0) program.setNiceness(terms.niceness);
    std::optional<NSError> error;
    const auto result = program.run(&error);
    if (!result || result->succeeded()) return error;
    return errorOf(*result);
}

// The program's output, in an unnamed file in the temporary folder.
std::optional<NSData> outputOf(const NSData &picture, const QByteArrayList &arguments, const Terms &terms,
                               std::optional<NSError> *error) {
    const auto fail = [&](const NSError &reason) {
        setError(error, reason);
        return std::nullopt;
    };
    auto output = std::make_shared<FileDescriptor>(unnamedFile());
    if (!*output) return fail(NSError::errorWithErrno(errno, NSTemporaryDirectory()));
    if (const auto reason = runOn(picture, arguments, output->get(), terms)) return fail(*reason);
    struct stat status;
    if (::fstat(output->get(), &status) != 0) return fail(NSError::errorWithErrno(errno, NSTemporaryDirectory()));
    return NSData::dataWithFile(std::move(output), 0, status.st_size);
}

} // namespace

std::optional<NSError> PictureProgram::check(const NSData &picture) {
    return runOn(picture, {"check"}, -1);
}

std::optional<NSData> PictureProgram::convert(const NSData &picture, const QByteArrayList &arguments,
                                              std::optional<NSError> *error) {
    return outputOf(picture, QByteArrayList{"convert"} + arguments, {}, error);
}

std::optional<NSData> PictureProgram::thumbnail(const NSData &picture, int maxPixels, std::stop_token cancellation,
                                                std::optional<NSError> *error) {
    return outputOf(picture, {"thumbnail", "--to", "jpeg", "--size", QByteArray::number(maxPixels)},
                    {longestThumbnail, std::move(cancellation), 5}, error);
}

} // namespace korvane
