// The state as JSON, for scripts: {"revision", "photos": […], "albums": […]}; ids are strings.
#pragma once

#include "StandIn/PhotoStore.h"

#include <QStringList>

namespace standin {

// Reads the bytes of photos whose SHA-256 is not known yet.
QByteArray stateJson(PhotoStore &store);

// Tags as Flickr reads them: separated by spaces, quotes keep words together.
QStringList tagsOf(const QByteArray &tags);

// A missing audience means everybody, the preset of the account there is.
bool isSet(const Photo &photo, const QByteArray &parameter);

} // namespace standin
