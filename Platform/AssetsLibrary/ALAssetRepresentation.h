// The file of an asset.
#pragma once

#include "Platform/ImageIO/CGImage.h"

#include <QString>

namespace korvane {

// The file stays open as long as this lives, whatever happens to its name. Thread: any; nothing changes after
// construction.
class ALAssetRepresentation {
public:
    ALAssetRepresentation(QString filename, NSData data);

    // The type identifier: told by the contents, empty for what is neither picture nor video.
    const QString &UTI() const { return _uti; }
    // The upright sRGB picture, full size unless the setting DisplayImageMaxPixels says less. Only meaningful for
    // pictures.
    CGImage zoomableDisplayImage() const;
    // Without folders, for showing: bytes that are no text appear replaced.
    const QString &filename() const { return _filename; }
    qint64 size() const { return _data.length(); } // bytes

    const NSData &data() const { return _data; }

private:
    QString _filename;
    NSData _data;
    QString _uti;
};

} // namespace korvane
