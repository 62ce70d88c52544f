// Tells what kind of picture some bytes are.
#include "Platform/ImageIO/CGImageSource.h"

#include "Platform/MobileCoreServices/UTType.h"

namespace korvane {

std::optional<CGImageSource> CGImageSource::createWithData(const NSData &data) {
    if (data.length() == 0) return std::nullopt;
    return CGImageSource(data);
}

QString CGImageSource::type() const {
    const QString type = typeIdentifierForData(_data);
    return UTTypeConformsTo(type, kUTTypeImage) ? type : QString();
}

} // namespace korvane
