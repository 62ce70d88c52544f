// Hears how the upload of a video goes on.
#pragma once

#include "Platform/Foundation/NSError.h"

#include <memory>

namespace korvane {

class VimeoPost;

enum VimeoPostWarningCode : qint64 {
    VimeoPostWarningNoHDQuota = 1, // a large video on an account without quota for high definition
};

// Calls that follow a chunk or a verify come on the main thread, the failure of an export on the export session's own
// queue, all others on the job's queue of the request layer.
class VimeoPostDelegate {
public:
    virtual ~VimeoPostDelegate() = default;

    // 0.0 until the whole video is stored, then 1.0; after each verify.
    virtual void vimeoPostUploadProgressDidChange(const std::shared_ptr<VimeoPost> &, float) {}
    // The upload goes on.
    virtual void vimeoPostWarningDuringUpload(const std::shared_ptr<VimeoPost> &post, qint64 code) = 0;
    // Either of these two ends the upload.
    virtual void vimeoPostUploadFailedWithError(const std::shared_ptr<VimeoPost> &post, const NSError &error) = 0;
    virtual void vimeoPostUploadSucceeded(const std::shared_ptr<VimeoPost> &post) = 0;
};

} // namespace korvane
