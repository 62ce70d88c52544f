// What the verifies of a video's chunks say about going on.
#include "Service/VerifyWatch.h"

#include "Korvane/VimeoPost.h"
#include "Platform/Foundation/LocalizedText.h"
#include "Service/FailureClassifier.h"
#include "Service/JobError.h"

#include <algorithm>

namespace korvane {
namespace {

constexpr int patience = 20;
constexpr quint64 chunkSize = 2'097'152;

// What is stored is not known now, and will be asked for again.
Verdict verdictOnRefusedVerify(const UploadContext::Snapshot &request) {
    if (request.httpStatus == 401 || request.httpStatus == 403)
        return FailureClassifier::verdictOnVimeoRun(
            {RunOutcome::Finished, NSError(VimeoPublishPostErrorDomain, VimeoPostErrorServiceCode401), request});
    return Verdict::waiting(WaitReason::NextTry, NSError(VimeoPublishPostErrorDomain, VimeoPostErrorBadResponse),
                            localizedText("Vimeo did not say how much of the video it has (HTTP status %1).",
                                          QString::number(request.httpStatus)));
}

NSError senselessCountError() {
    return jobError(JobErrorSenselessCount,
                    localizedText("Vimeo says that it has more of the video than there is. Retry later."));
}

NSError stuckError() {
    return jobError(JobErrorStuck,
                    localizedText("Vimeo takes the video's parts but stores nothing of them. Retry later."));
}

} // namespace

std::optional<Verdict> VerifyWatch::objection(const UploadContext::Snapshot &request, quint64 bytesStored,
                                              quint64 size) {
    if (request.httpStatus >= 400) return verdictOnRefusedVerify(request);
    if (bytesStored > size) return Verdict::failed(senselessCountError());
    if (!_getsOn(bytesStored)) return Verdict::failed(stuckError());
    return std::nullopt;
}

// False once 20 verifies in a row have reported nothing new. Where an endpoint has lost what it had, what is sent once
// more is not new, but it may take as many verifies as it has chunks to come back.
bool VerifyWatch::_getsOn(quint64 bytesStored) {
    _withoutAdvance = bytesStored > _last ? 0 : _withoutAdvance + 1;
    _withoutRecord = bytesStored > _most ? 0 : _withoutRecord + 1;
    _last = bytesStored;
    _most = std::max(_most, bytesStored);
    return _withoutAdvance < patience && _withoutRecord < patience + _most / chunkSize;
}

} // namespace korvane
