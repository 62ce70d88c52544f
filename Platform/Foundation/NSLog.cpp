// The platform log: one line with time, program and process on standard error.
#include "Platform/Foundation/NSLog.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QRegularExpression>

#include <unistd.h>

#include <memory>
#include <mutex>

namespace korvane {
namespace {

std::mutex sinkMutex;
std::function<void(const QString &)> &sink() {
    static std::function<void(const QString &)> installed;
    return installed;
}

} // namespace

void setLogSink(std::function<void(const QString &message)> installed) {
    const std::lock_guard lock(sinkMutex);
    sink() = std::move(installed);
}

void logging::write(const std::string &message) {
    const std::lock_guard lock(sinkMutex);
    if (sink()) return sink()(QString::fromStdString(message));
    const std::string line =
        fmt::format("{} {}[{}] {}\n", QDateTime::currentDateTime().toString(u"yyyy-MM-dd HH:mm:ss.zzz").toStdString(),
                    QCoreApplication::applicationName().toStdString(), ::getpid(), message);
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, line.data(), line.size());
}

std::string logging::printfFormat(const char *format) {
    std::string result(format);
    for (size_t i = 0; i + 1 < result.size(); ++i) {
        if (result[i] != '%') continue;
        ++i;
        if (result[i] == '@') result[i] = 's';
    }
    return result;
}

QString redacted(const QString &text) {
    static const QRegularExpression secret(
        QStringLiteral(R"((oauth_(?:token|token_secret|consumer_key|consumer_secret|signature|nonce|verifier)"
                       R"()|(?:consumer|token)Secret)(=|%3D|%253D|"\s*:\s*)("[^"]*"|[^&%\s",<]+))"),
        QRegularExpression::CaseInsensitiveOption);
    QString result = text;
    return result.replace(secret, QStringLiteral("\\1\\2…"));
}

} // namespace korvane
