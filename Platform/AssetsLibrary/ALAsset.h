// A picture or video of the photo library.
#pragma once

#include "Platform/AssetsLibrary/ALAssetRepresentation.h"
#include "Platform/Foundation/NSURL.h"

#include <memory>

namespace korvane {

class ALAsset {
public:
    ALAsset(NSURL url, std::shared_ptr<ALAssetRepresentation> representation)
        : _url(std::move(url)), _representation(std::move(representation)) {}

    const NSURL &url() const { return _url; }
    // Never null.
    const std::shared_ptr<ALAssetRepresentation> &defaultRepresentation() const { return _representation; }

private:
    NSURL _url;
    std::shared_ptr<ALAssetRepresentation> _representation;
};

} // namespace korvane
