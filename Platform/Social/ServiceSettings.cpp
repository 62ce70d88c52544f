// The settings in which a client and the upload service must agree.
#include "Platform/Social/ServiceSettings.h"

#include "Platform/AssetsLibrary/ALAssetsLibrary.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Preferences/KorvaneSettings.h"

#include <QDBusArgument>

namespace korvane {
namespace {

QVariantMap plainMap(const QVariant &value) {
    return value.canConvert<QDBusArgument>() ? qdbus_cast<QVariantMap>(value) : value.toMap();
}

} // namespace

ServiceSettings ServiceSettings::current() {
    return {{{QStringLiteral("flickr"), KorvaneSettings::flickrUploadHost()},
             {QStringLiteral("vimeo"), KorvaneSettings::vimeoRESTHost()}},
            ALAssetsLibrary::photoRoots(),
            stateFolder() + QStringLiteral("/spool")};
}

QVariantMap ServiceSettings::dictionary() const {
    return {{QStringLiteral("Hosts"), hosts},
            {QStringLiteral("PhotoRoots"), photoRoots},
            {QStringLiteral("SpoolFolder"), spoolFolder}};
}

ServiceSettings ServiceSettings::fromDictionary(const QVariantMap &properties) {
    return {plainMap(properties.value(QStringLiteral("Hosts"))),
            plainMap(properties.value(QStringLiteral("PhotoRoots"))),
            properties.value(QStringLiteral("SpoolFolder")).toString()};
}

std::optional<QString> ServiceSettings::difference(const ServiceSettings &service) const {
    const auto sentence = [](const QString &what, const QString &theirs, const QString &ours) {
        return QStringLiteral("The upload service that is running uses %1 %2, this program %3. "
                              "End the service (it starts again by itself) or use the same settings.")
            .arg(what, theirs, ours);
    };
    if (spoolFolder != service.spoolFolder)
        return sentence(QStringLiteral("the spool folder"), service.spoolFolder, spoolFolder);
    for (const auto &[ours, theirs, what] :
         {std::tuple{&hosts, &service.hosts, QStringLiteral("the %1 host")},
          std::tuple{&photoRoots, &service.photoRoots, QStringLiteral("the %1 folder")}})
        for (auto it = ours->cbegin(); it != ours->cend(); ++it)
            if (theirs->value(it.key()) != *it)
                return sentence(what.arg(it.key()), theirs->value(it.key()).toString(), it->toString());
    return std::nullopt;
}

} // namespace korvane
