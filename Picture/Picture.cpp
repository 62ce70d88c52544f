// One picture on its way from a file to an upright sRGB picture.
#include "Picture/Picture.h"

#include <algorithm>
#include <cstdint>

using vips::VImage;
using vips::VOption;

namespace korvane {
namespace {

constexpr int64_t mostPixels = 500'000'000;
constexpr int longestJPEGEdge = 65500;
constexpr double white = 255;

vips::VSource sourceOf(int descriptor) {
    return vips::VSource::new_from_descriptor(descriptor);
}

// The colours of the embedded profile as sRGB, 8 bits a channel; the picture itself if it has no profile that fits it,
// which is common in the wild.
VImage withoutProfile(const VImage &picture) {
    const bool isCMYK = picture.interpretation() == VIPS_INTERPRETATION_CMYK;
    if (!isCMYK && picture.get_typeof(VIPS_META_ICC_NAME) == 0) return picture;
    try {
        return picture.icc_transform("srgb", VImage::option()
                                                 ->set("embedded", true)
                                                 ->set("input_profile", isCMYK ? "cmyk" : "srgb")
                                                 ->set("black_point_compensation", true)
                                                 ->set("depth", 8));
    } catch (const vips::VError &) {
        vips_error_clear();
        return picture;
    }
}

// 8 bits a channel, three channels and perhaps an alpha channel.
VImage inSRGB(const VImage &picture) {
    if (picture.has_alpha() && picture.format() == VIPS_FORMAT_USHORT) {
        // The profile transformation would cut the alpha channel to 8 bits instead of scaling it.
        const VImage colours = picture.extract_band(0, VImage::option()->set("n", picture.bands() - 1));
        return inSRGB(colours).bandjoin(picture.extract_band(picture.bands() - 1).msb());
    }
    VImage result = withoutProfile(picture).colourspace(VIPS_INTERPRETATION_sRGB);
    if (result.format() != VIPS_FORMAT_UCHAR) result = result.cast(VIPS_FORMAT_UCHAR);
    if (result.bands() < 3) throw PictureError("the picture has no colours that can be shown");
    const int channels = result.has_alpha() ? 4 : 3;
    return result.bands() > channels ? result.extract_band(0, VImage::option()->set("n", channels)) : result;
}

VOption *within(int maxPixels) {
    return VImage::option()->set("height", maxPixels)->set("size", VIPS_SIZE_DOWN);
}

} // namespace

Picture::Picture(int descriptor) : _descriptor(descriptor) {
    vips::VSource source = sourceOf(descriptor);
    if (!vips_foreign_find_load_source(source.get_source())) throw PictureError(unreadableFormat);
    vips_error_clear();
    const VImage header = VImage::new_from_source(source, "");
    if (int64_t(header.width()) * header.height() > mostPixels)
        throw PictureError("the picture is too large: " + std::to_string(header.width()) + " x " +
                           std::to_string(header.height()) + " pixels, at most 500 million in all are possible");
    _longerEdge = std::max(header.width(), header.height());
    _turned = vips_image_get_orientation(header.get_image()) > 1;
}

VImage Picture::_load(bool sequential) const {
    return VImage::new_from_source(sourceOf(_descriptor), "",
                                   VImage::option()
                                       ->set("access", sequential ? VIPS_ACCESS_SEQUENTIAL : VIPS_ACCESS_RANDOM)
                                       ->set("fail_on", VIPS_FAIL_ON_TRUNCATED));
}

void Picture::check() const {
    inSRGB(_load(true)).avg();
}

VImage Picture::_upright(int maxPixels) const {
    if (maxPixels > 0 && maxPixels < _longerEdge)
        return inSRGB(_load(true)).thumbnail_image(maxPixels, within(maxPixels));
    return inSRGB(_turned ? _load(false).autorot() : _load(true));
}

// May take a smaller picture out of the file, or decode fewer pixels of it.
VImage Picture::_thumbnail(int maxPixels) const {
    return inSRGB(VImage::thumbnail_source(sourceOf(_descriptor), maxPixels,
                                           within(maxPixels)->set("fail_on", VIPS_FAIL_ON_TRUNCATED)));
}

void Picture::convert(const Options &options, OutputFile &output) const {
    const bool isJPEG = options.format == OutputFormat::JPEG;
    int maxPixels = options.maxPixels;
    if (isJPEG && (maxPixels == 0 || maxPixels > longestJPEGEdge)) maxPixels = longestJPEGEdge;
    VImage picture = options.command == Command::Thumbnail ? _thumbnail(maxPixels) : _upright(maxPixels);
    if (isJPEG && picture.has_alpha()) picture = picture.flatten(VImage::option()->set("background", white));
    if (isJPEG)
        picture.jpegsave_target(output.target(), VImage::option()->set("Q", options.quality)->set("strip", true));
    else
        picture.pngsave_target(output.target(), VImage::option()->set("strip", true));
}

} // namespace korvane
