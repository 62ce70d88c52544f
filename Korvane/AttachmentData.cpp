// The bytes of what is attached to a share.
#include "Korvane/AttachmentData.h"

#include "Platform/Foundation/NSLog.h"

namespace korvane {

std::optional<NSData> dataOfAttachment(const SLAttachment &attachment, const char *what, const char *service) {
    const auto *payload = std::get_if<NSData>(&attachment.payload);
    NSLog("Got %sData with length %@", what, QString::number(payload ? payload->length() : 0));
    if (payload) return *payload;
    if (!attachment.payloadSourceFileURL) return std::nullopt;
    std::optional<NSError> error;
    const auto data = NSData::dataWithContentsOfURL(*attachment.payloadSourceFileURL, &error);
    NSLog("Loaded %sData with length %@ from payloadSourceFileURL", what, QString::number(data ? data->length() : 0));
    if (!data || error) NSLog("Can't get attachment data for %s post. error %@", service, error);
    return data;
}

} // namespace korvane
