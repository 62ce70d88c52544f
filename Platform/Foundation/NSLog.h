// The platform log: one line with time, program and process on standard error.
#pragma once

#include "Platform/Foundation/NSError.h"
#include "Platform/Foundation/NSURL.h"

#include <fmt/printf.h>

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <string>
#include <type_traits>

namespace korvane {

// Receives finished messages instead of standard error; an empty function restores it. Thread: any.
void setLogSink(std::function<void(const QString &message)> sink);

namespace logging {

void write(const std::string &message);
// The format with every "%@" as "%s"; "%%" is left alone.
std::string printfFormat(const char *format);

inline std::string argument(const QString &text) {
    return text.toStdString();
}
inline std::string argument(const NSError &error) {
    return error.description().toStdString();
}
inline std::string argument(const NSURL &url) {
    return url.absoluteString().toStdString();
}
inline std::string argument(const char *text) {
    return text;
}
template <class T>
requires std::is_arithmetic_v<T> T argument(T number) {
    return number;
}
template <class T>
auto argument(const std::optional<T> &value) {
    return value ? argument(*value) : std::string("(null)");
}

} // namespace logging

// Writes one line. The format takes printf directives and "%@" for texts, errors and URLs; an empty optional is
// "(null)". Thread: any; lines of several threads do not mix.
template <class... Arguments>
void NSLog(const char *format, const Arguments &...arguments) {
    logging::write(fmt::sprintf(logging::printfFormat(format), logging::argument(arguments)...));
}

// The text without the values of OAuth parameters (tokens, keys, signatures, nonces), plain or percent-encoded.
// Everything that logs or shows a request or a service's answer passes through here.
QString redacted(const QString &text);

} // namespace korvane
