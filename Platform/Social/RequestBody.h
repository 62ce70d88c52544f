// The two body encodings of a signed request.
#pragma once

#include "Platform/Foundation/NSData.h"
#include "Platform/Social/OAuthSigner.h"

#include <optional>
#include <vector>

namespace korvane {

struct MultipartPart {
    NSData data;
    QString name;
    QString type;                    // media type
    std::optional<QString> filename; // none: the part has no file name
};

struct RequestBody {
    QByteArray contentType;
    std::vector<NSData> pieces; // sent one after the other

    // application/x-www-form-urlencoded, with "%20" for a space as OAuth wants it.
    static RequestBody form(const OAuthParameters &parameters);
    // multipart/form-data (RFC 7578): the parameters as text parts, then the parts, whose bytes are referred to, not
    // copied.
    static RequestBody multipart(const OAuthParameters &parameters, const std::vector<MultipartPart> &parts);
};

} // namespace korvane
