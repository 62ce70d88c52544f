// One photo set (album) of a Flickr user.
#pragma once

#include <QString>

#include <optional>

namespace korvane {

struct FlickrPhotoSet {
    qint64 identifier = 0; // 0: the entry that stands for no set
    qint64 primaryPhotoID = 0;
    qint64 farmID = 0;
    qint64 serverID = 0;
    std::optional<QString> secret;
    std::optional<QString> title;
    std::optional<QString> photoSetDescription;

    // The text for debugging.
    QString description() const;
};

} // namespace korvane
