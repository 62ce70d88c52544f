// Localized texts of the library's string tables.
#pragma once

#include <QString>

namespace korvane {

namespace NSBundle {

// The text of a key in a string table ("Flickr", "Vimeo") in the language of the user's locale, else in English; value
// where the table has no such key. count: chooses between singular and plural where it is not negative. Tables are read
// once per process. Thread: any.
QString localizedString(const QString &key, const QString &value, const QString &table, int count = -1);

} // namespace NSBundle

} // namespace korvane
