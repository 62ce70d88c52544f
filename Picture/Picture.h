// One picture on its way from a file to an upright sRGB picture.
#pragma once

#include "Picture/Options.h"
#include "Picture/OutputFile.h"

#include <stdexcept>

#include <vips/vips8>

namespace korvane {

inline constexpr const char *unreadableFormat = "this is not a picture in a format that can be read";

// What is wrong with a picture, in words for people.
struct PictureError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Everything throws PictureError for a picture that cannot be used, and vips::VError where libvips says so.
class Picture {
public:
    // Looks at the header only. The descriptor stays the caller's; it must be a regular file.
    explicit Picture(int descriptor);

    // Decodes everything, upright position aside, as a later conversion will.
    void check() const;
    void convert(const Options &options, OutputFile &output) const;

private:
    vips::VImage _load(bool sequential) const;
    vips::VImage _upright(int maxPixels) const;
    vips::VImage _thumbnail(int maxPixels) const;

    int _descriptor;
    int _longerEdge = 0;
    bool _turned = false; // not stored in the position in which it is shown
};

} // namespace korvane
