// Where an asset is: which file below which of the two folders of the photo library.
#pragma once

#include "Platform/Foundation/FileDescriptor.h"
#include "Platform/Foundation/NSURL.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace korvane {

// Asset URLs read assets-library://asset/asset.JPG?id=pictures%2FHoliday%2FIMG_1.jpg&ext=JPG, with "videos" in place of
// "pictures" for the other folder. The id is percent-encoded as a whole; its bytes need not be UTF-8.
struct AssetLocation {
    QString folder;  // "pictures" or "videos"
    QByteArray path; // below that folder, in the file system's own bytes

    // Null for any other URL.
    static std::optional<AssetLocation> ofURL(const NSURL &url);
    // Null for a file that is in neither folder, once all symbolic links are resolved, or is no regular file.
    static std::optional<AssetLocation> ofFile(const QByteArray &path);

    NSURL url() const;
    // Opens the file for reading. The kernel sees to it that the path does not lead out of the folder, be it by "..",
    // by an absolute symbolic link, or while names change under it. Invalid with errno; ENOENT also for a path that
    // leads out and for what is no regular file.
    FileDescriptor open() const;
};

// The folder of that name: below KORVANE_PHOTO_LIBRARY=DIR its Pictures or Videos, or DIR itself where there is no such
// folder; without that variable the user's own Pictures or Videos folder.
QString photoRoot(const QString &folder);

} // namespace korvane
