// Reading a file from any place in it, and removing one.
#include "Platform/Foundation/NSFileHandle.h"
#include "Platform/Foundation/NSFileManager.h"
#include "Tests/Support/Testing.h"

#include <sys/stat.h>

#include <cerrno>
#include <limits>
#include <tuple>

namespace korvane::test {
namespace {

TEST(NSFileHandle, ReadsFromWhereItStandsUpToTheEnd) {
    const TemporaryHome home;
    const QByteArray bytes = jpegOfSize(10'000);
    const QByteArray path = home.file("clip #1.mp4", bytes);
    auto handle = NSFileHandle::fileHandleForReadingFromURL(NSURL::fileURLWithPath(path));
    ASSERT_TRUE(handle);
    constexpr quint64 all = std::numeric_limits<quint64>::max();
    const std::tuple<quint64, quint64, quint64, quint64> table[] = {
        {0, 10, 0, 10}, {4096, 4096, 4096, 4096}, {9'990, 100, 9'990, 10}, {10'000, 5, 10'000, 0}, {all, 5, 10'000, 0},
        {0, 0, 0, 0},   {3, all, 3, 9'997},       {12'000, all, 10'000, 0}};
    for (const auto &[offset, length, start, count] : table) {
        handle->seekToFileOffset(offset);
        EXPECT_EQ(handle->readDataOfLength(length).bytes(), bytes.mid(qint64(start), qint64(count)))
            << offset << ' ' << length;
        EXPECT_EQ(handle->offsetInFile(), offset + count);
    }
    handle->seekToFileOffset(100);
    handle->readDataOfLength(50);
    EXPECT_EQ(handle->readDataOfLength(50).bytes(), bytes.mid(150, 50)) << "one piece after the other";
    EXPECT_EQ(handle->seekToEndOfFile(), 10'000);
    home.file("clip #1.mp4", bytes + "more"); // the same file, grown
    EXPECT_EQ(handle->readDataOfLength(100).bytes(), "more");
    EXPECT_EQ(handle->seekToEndOfFile(), 10'004) << "measured afresh";
    handle->seekToFileOffset(4);
    const NSData data = handle->readDataOfLength(3);
    handle.reset();
    home.file("clip #1.mp4", "one TWO three"); // the same file
    ASSERT_TRUE(NSFileManager::defaultManager().removeItemAtURL(NSURL::fileURLWithPath(path)));
    EXPECT_EQ(data.bytes(), "TWO") << "read when it is used, without handle and name";
}

TEST(NSFileHandle, TellsWhyAFileCannotBeReadOrRemoved) {
    const TemporaryHome home;
    const QByteArray folder = QFile::encodeName(home.path());
    home.file("full/inside", "x");
    ::mkfifo((folder + "/fifo").constData(), 0600);
    const std::tuple<QByteArray, int, int> table[] = {
        {"file://" + folder + "/missing.mp4", ENOENT, ENOENT},
        {"file://" + folder + "/full", EISDIR, ENOTEMPTY},
        {"file://" + folder + "/full/inside%00.mp4", ENOENT, EINVAL},
        {"file://" + folder + "/fifo", EINVAL, 0},
        {"http://localhost" + folder + "/full/inside", EINVAL, EINVAL},
    };
    for (const auto &[text, readError, removeError] : table) {
        const auto url = NSURL::URLWithString(QString::fromLatin1(text));
        std::optional<NSError> error;
        EXPECT_EQ(NSFileHandle::fileHandleForReadingFromURL(*url, &error), nullptr);
        ASSERT_TRUE(error) << text.constData();
        EXPECT_EQ(error->domain(), NSPOSIXErrorDomain);
        EXPECT_EQ(error->code(), readError) << text.constData();
        error.reset();
        EXPECT_EQ(NSFileManager::defaultManager().removeItemAtURL(*url, &error), removeError == 0);
        EXPECT_EQ(error ? error->code() : 0, removeError) << text.constData();
    }
    EXPECT_TRUE(QFile::exists(home.path("full/inside")));
    EXPECT_FALSE(QFile::exists(home.path("fifo")));
}

} // namespace
} // namespace korvane::test
