// How GoogleTest shows our values when an expectation fails, and what texts are expected to say.
#pragma once

#include "Platform/Foundation/NSError.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <ostream>

namespace korvane {

inline void PrintTo(const NSError &error, std::ostream *stream) {
    *stream << error.description().toStdString();
}

} // namespace korvane

QT_BEGIN_NAMESPACE
inline void PrintTo(const QString &text, std::ostream *stream) {
    *stream << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QStringList &texts, std::ostream *stream) {
    *stream << '[' << texts.join(QStringLiteral(", ")).toStdString() << ']';
}
inline void PrintTo(const QByteArray &bytes, std::ostream *stream) {
    *stream << '"' << bytes.left(1000).toStdString() << '"';
}
QT_END_NAMESPACE

namespace korvane::test {

// True if the text holds the part; a failure shows the text.
inline ::testing::AssertionResult says(const QByteArray &text, const QByteArray &part) {
    const auto result = text.contains(part) ? ::testing::AssertionSuccess() : ::testing::AssertionFailure();
    return ::testing::AssertionResult(result) << '"' << text.constData() << "\" about \"" << part.constData() << '"';
}
inline ::testing::AssertionResult says(const QString &text, const QByteArray &part) {
    return says(text.toUtf8(), part);
}
// The same for an error's text for people; there must be an error.
inline ::testing::AssertionResult says(const std::optional<NSError> &error, const QByteArray &part) {
    if (!error) return ::testing::AssertionFailure() << "no error about \"" << part.constData() << '"';
    return says(error->localizedDescription(), part);
}

} // namespace korvane::test
