// The settings in which a client and the upload service must agree.
#include "Platform/Social/ServiceSettings.h"

#include "Platform/AssetsLibrary/ALAssetsLibrary.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/LocalizedText.h"
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
        return localizedText("The upload service that is running uses %1 %2, this program %3. "
                             "End the service (it starts again by itself) or use the same settings.",
                             what, theirs, ours);
    };
    if (spoolFolder != service.spoolFolder)
        return sentence(localizedText("the spool folder"), service.spoolFolder, spoolFolder);
    for (const auto &[ours, theirs] : {std::pair{&hosts, &service.hosts}, std::pair{&photoRoots, &service.photoRoots}})
        for (auto it = ours->cbegin(); it != ours->cend(); ++it)
            if (theirs->value(it.key()) != *it)
                return sentence(ours == &hosts ? localizedText("the %1 host", it.key())
                                               : localizedText("the %1 folder", it.key()),
                                theirs->value(it.key()).toString(), it->toString());
    return std::nullopt;
}

} // namespace korvane
