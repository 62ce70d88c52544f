// How GoogleTest shows our values when an expectation fails.
#pragma once

#include "Platform/Foundation/NSError.h"

#include <QStringList>

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
QT_END_NAMESPACE
