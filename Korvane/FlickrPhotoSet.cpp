// One photo set (album) of a Flickr user.
#include "Korvane/FlickrPhotoSet.h"

namespace korvane {

QString FlickrPhotoSet::description() const {
    const auto text = [](const std::optional<QString> &value) { return value.value_or(QStringLiteral("(null)")); };
    return QStringLiteral("<FlickrPhotoSet: 0x%1> -- Title: %2 Description: %3 (id: %4 primary photo: %5)")
        .arg(QString::number(quintptr(this), 16), text(title), text(photoSetDescription), QString::number(identifier),
             QString::number(primaryPhotoID));
}

} // namespace korvane
