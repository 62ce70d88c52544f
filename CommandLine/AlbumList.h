// The albums of the Flickr account in use, as the share sheet's own screen loads them.
#pragma once

#include "FlickrPhotoSetController.h"
#include "Korvane/FlickrComposeViewController.h"

namespace korvane {

namespace AlbumList {

// Opens the sheet's screen and waits for the albums. Null, after saying why, if they cannot be loaded. Needs the
// application object; blocks.
std::shared_ptr<FlickrPhotoSetController> load(FlickrComposeViewController &sheet);

// The row of the album with that title, else with that number. Null, after saying why and naming the albums, if there
// is none, or more than one of that title.
std::optional<qint64> rowOf(const FlickrPhotoSetController &screen, const QString &nameOrNumber);

// The album's number and title, for people; one line.
QString lineOf(const FlickrPhotoSet &album);

} // namespace AlbumList

} // namespace korvane
