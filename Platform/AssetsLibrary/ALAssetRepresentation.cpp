// The file of an asset.
#include "Platform/AssetsLibrary/ALAssetRepresentation.h"

#include "Platform/MobileCoreServices/UTType.h"
#include "Platform/Preferences/KorvaneSettings.h"

namespace korvane {

ALAssetRepresentation::ALAssetRepresentation(QString filename, NSData data)
    : _filename(std::move(filename)), _data(std::move(data)), _uti(typeIdentifierForData(_data)) {}

CGImage ALAssetRepresentation::zoomableDisplayImage() const {
    return {_data, KorvaneSettings::displayImageMaxPixels()};
}

} // namespace korvane
