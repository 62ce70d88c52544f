// What Korvane tells people beside the texts of its pages, such as errors, in their language.
#pragma once

#include <QString>

#include <concepts>

namespace korvane {

// The text of the string table "Errors" in the language of the user's locale. english: the text itself and its key,
// given as a literal. Thread: any.
QString localizedText(const char *english);

// The arguments take the places of "%1" to "%9", all at one go.
template <std::convertible_to<QString>... Arguments>
requires(sizeof...(Arguments) > 0) QString localizedText(const char *english, const Arguments &...arguments) {
    return localizedText(english).arg(QString(arguments)...);
}

// A text about a number of things, which takes the place of "%n".
QString localizedCount(const char *english, qint64 count);

} // namespace korvane
