// The settings in which a client and the upload service must agree.
#pragma once

#include <QString>
#include <QVariantMap>

#include <optional>

namespace korvane {

struct ServiceSettings {
    QVariantMap hosts;      // "flickr", "vimeo": base URLs that uploads go to
    QVariantMap photoRoots; // "pictures", "videos": folders of the photo library
    QString spoolFolder;    // where the service keeps the data it has taken over

    // Those of this process, from its environment and preferences.
    static ServiceSettings current();
    // As published in the properties of the status interface.
    QVariantMap dictionary() const;
    static ServiceSettings fromDictionary(const QVariantMap &properties);

    // One sentence that names the first setting that differs, and both values; null if all agree.
    std::optional<QString> difference(const ServiceSettings &service) const;
};

} // namespace korvane
