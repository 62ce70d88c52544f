// Type identifiers: what kind of contents a file holds, and which kinds are special cases of others.
#include "Platform/MobileCoreServices/UTType.h"

#include <QMimeDatabase>

#include <algorithm>
#include <array>

namespace korvane {

const QString kUTTypeItem = QStringLiteral("public.item");
const QString kUTTypeImage = QStringLiteral("public.image");
const QString kUTTypeJPEG = QStringLiteral("public.jpeg");
const QString kUTTypePNG = QStringLiteral("public.png");
const QString kUTTypeGIF = QStringLiteral("com.compuserve.gif");
const QString kUTTypeTIFF = QStringLiteral("public.tiff");
const QString kUTTypeBMP = QStringLiteral("com.microsoft.bmp");
const QString kUTTypeHEIC = QStringLiteral("public.heic");
const QString kUTTypeAVIF = QStringLiteral("public.avif");
const QString kUTTypeWebP = QStringLiteral("org.webmproject.webp");
const QString kUTTypeJPEGXL = QStringLiteral("public.jpeg-xl");
const QString kUTTypeMovie = QStringLiteral("public.movie");
const QString kUTTypeMPEG4 = QStringLiteral("public.mpeg-4");

namespace {

// MIME types, the identifier of each, and what that is a special case of.
struct KnownType {
    const char *mimeType;
    const char *identifier;
    const char *parent;
};

constexpr std::array knownTypes = {
    KnownType{"image/jpeg", "public.jpeg", "public.image"},
    KnownType{"image/png", "public.png", "public.image"},
    KnownType{"image/gif", "com.compuserve.gif", "public.image"},
    KnownType{"image/tiff", "public.tiff", "public.image"},
    KnownType{"image/bmp", "com.microsoft.bmp", "public.image"},
    KnownType{"image/heif", "public.heic", "public.image"},
    KnownType{"image/heic", "public.heic", "public.image"},
    KnownType{"image/avif", "public.avif", "public.image"},
    KnownType{"image/webp", "org.webmproject.webp", "public.image"},
    KnownType{"image/jxl", "public.jpeg-xl", "public.image"},
    KnownType{"video/mp4", "public.mpeg-4", "public.movie"},
    KnownType{"video/3gpp", "public.3gpp", "public.movie"},
    KnownType{"video/mpeg", "public.mpeg", "public.movie"},
    KnownType{"video/x-msvideo", "public.avi", "public.movie"},
    KnownType{"video/webm", "org.webmproject.webm", "public.movie"},
    KnownType{"application/x-matroska", "public.movie", "public.item"}, // as far as the first bytes tell
    KnownType{"application/vnd.ms-asf", "public.movie", "public.item"},
    KnownType{"application/mxf", "public.movie", "public.item"},
    KnownType{"", "public.image", "public.item"},
    KnownType{"", "public.movie", "public.item"},
};

constexpr qint64 tellingBytes = 4096;

// Cameras write MP4 under brands that the MIME database does not know.
bool hasVideoBrand(const QByteArray &start) {
    constexpr std::array brands = {"iso", "avc1", "XAVC", "MSNV", "dash", "cmf", "F4V", "CAEP", "niko", "pana", "mqt"};
    const QByteArray brand = start.mid(8, 4);
    return start.mid(4, 4) == "ftyp" &&
           std::any_of(brands.begin(), brands.end(), [&](const char *one) { return brand.startsWith(one); });
}

} // namespace

bool UTTypeConformsTo(const QString &type, const QString &conformingTo) {
    if (type.isEmpty()) return false;
    if (type.compare(conformingTo, Qt::CaseInsensitive) == 0) return true;
    const auto known = std::find_if(knownTypes.begin(), knownTypes.end(), [&](const KnownType &entry) {
        return type.compare(QLatin1String(entry.identifier), Qt::CaseInsensitive) == 0;
    });
    return known != knownTypes.end() && UTTypeConformsTo(QString::fromLatin1(known->parent), conformingTo);
}

QString typeIdentifierForMimeType(const QString &mimeType) {
    for (const KnownType &entry : knownTypes) {
        if (!mimeType.isEmpty() && mimeType == QLatin1String(entry.mimeType))
            return QString::fromLatin1(entry.identifier);
    }
    if (mimeType.startsWith(QLatin1String("image/"))) return kUTTypeImage;
    if (mimeType.startsWith(QLatin1String("video/"))) return kUTTypeMovie;
    return {};
}

QString typeIdentifierForData(const NSData &data) {
    const QByteArray start = data.subdata(0, tellingBytes).bytes();
    const QString mimeType = QMimeDatabase().mimeTypeForData(start).name();
    if (mimeType == QLatin1String("application/octet-stream") && hasVideoBrand(start)) return kUTTypeMPEG4;
    return typeIdentifierForMimeType(mimeType);
}

} // namespace korvane
