// What becomes of a Vimeo upload after a run.
#include "Service/FailureClassifier.h"

#include "Korvane/VimeoPost.h"
#include "Platform/AVFoundation/AVError.h"
#include "Platform/Foundation/LocalizedText.h"
#include "Platform/Foundation/NSJSONSerialization.h"
#include "Platform/Foundation/NSNumber.h"

#include <cerrno>

namespace korvane {
namespace {

const QString serviceName = QStringLiteral("Vimeo");

// The "err" object of the last answer; empty where it has none.
QVariantMap refusalIn(const UploadContext::Snapshot &request) {
    const auto answer = NSJSONSerialization::JSONObjectWithData(request.answer);
    return answer ? answer->toMap().value(QStringLiteral("err")).toMap() : QVariantMap();
}

QString wordsOf(const QVariantMap &refusal) {
    const QString message = refusal.value(QStringLiteral("msg")).toString();
    const QString explanation = refusal.value(QStringLiteral("expl")).toString();
    return shownAnswer(explanation.isEmpty() ? message : message + QStringLiteral(": ") + explanation);
}

// The person can only act on what Vimeo itself has said, if it has said anything.
Verdict verdictOnBadAnswer(const NSError &error, const UploadContext::Snapshot &request) {
    const QVariantMap refusal = refusalIn(request);
    if (refusal.isEmpty())
        return Verdict::failed(error, localizedText("Vimeo's answer was not understood (HTTP status %1). Retry later.",
                                                    QString::number(request.httpStatus)));
    return Verdict::failed(error, localizedText("Vimeo refused the video: %1 (code %2). Retry, or share it again.",
                                                wordsOf(refusal), refusal.value(QStringLiteral("code")).toString()));
}

Verdict verdictOnPostError(const NSError &error, const UploadContext::Snapshot &request) {
    switch (error.code()) {
    case VimeoPostErrorServiceCode401:
        return Verdict::failed(error, localizedText("Vimeo does not accept the sign-in (%1). Sign in again, "
                                                    "check this device's clock, then retry.",
                                                    wordsOf(refusalIn(request))));
    case VimeoPostErrorServiceCode708:
        return Verdict::waiting(WaitReason::NextTry, error, localizedText("Vimeo asks to send the video again."));
    case VimeoPostErrorQuotaExceeded:
        return Verdict::failed(error, localizedText("The video is larger than the space that is free on Vimeo. Free "
                                                    "space there, or share a smaller one."));
    case VimeoPostErrorNoSDQuota:
        return Verdict::failed(error, localizedText("The Vimeo account can take no more videos just now. Retry when "
                                                    "its quota is renewed."));
    default:
        return verdictOnBadAnswer(error, request);
    }
}

// What an upload that failed after its commit has not set.
QString missingOf(const VimeoPost &post) {
    QStringList missing;
    if (post.uploadState() < VimeoUploadStateSettingDescription) {
        missing.append(localizedText("title"));
        if (post.postDescription) missing.append(localizedText("description"));
    }
    if (post.uploadState() < VimeoUploadStateSettingPrivacy && post.tags) missing.append(localizedText("tags"));
    missing.append(localizedText("privacy setting"));
    const QString last = missing.takeLast();
    return missing.isEmpty() ? last : localizedText("%1 and %2", missing.join(localizedText(", ")), last);
}

Verdict verdictOnExport(const NSError &error) {
    const bool mayPass = error.code() == AVErrorDiskFull || error.code() == AVErrorExportFailed;
    return mayPass ? Verdict::waiting(WaitReason::NextTry, error, error.localizedDescription())
                   : Verdict::failed(error);
}

} // namespace

Verdict FailureClassifier::verdictOnVimeoRun(const RunOutcome &outcome) {
    if (const auto verdict = Verdict::onUnbegunRun(outcome)) return *verdict;
    if (!outcome.error) return {};
    const NSError &error = *outcome.error;
    const auto &request = outcome.lastRequest;
    if (error.domain() == AVFoundationErrorDomain) return verdictOnExport(error);
    if (error.domain() == NSURLErrorDomain) return Verdict::onTransport(error, serviceName);
    if (error.domain() != VimeoPublishPostErrorDomain) return Verdict::failed(error);
    // The upload's own codes for an answer that did not come say nothing of why.
    if (request.transportError) return Verdict::onTransport(*request.transportError, serviceName);
    if (const auto verdict = Verdict::onServerTrouble(error, request.httpStatus, serviceName)) return *verdict;
    return verdictOnPostError(error, request);
}

Verdict FailureClassifier::verdictAfterCommit(const RunOutcome &outcome, const VimeoPost &post) {
    Verdict verdict = verdictOnVimeoRun(outcome);
    if (!verdict.error) return verdict;
    const QVariantMap refusal = refusalIn(outcome.lastRequest);
    const bool isRefused = verdict.state == UploadState::Failed && !refusal.isEmpty() &&
                           verdict.error->code() != VimeoPostErrorServiceCode401;
    const QString reason = isRefused ? localizedText("Vimeo refused it: %1 (code %2). Retry.", wordsOf(refusal),
                                                     refusal.value(QStringLiteral("code")).toString())
                                     : verdict.error->localizedDescription();
    QString text = localizedText("The video is on Vimeo, but without its %1. %2", missingOf(post), reason);
    if (post.privacySettings != VimeoPrivacyPublic)
        text += u' ' + localizedText("Until then others may see the video.");
    verdict.error = NSError::errorWithDescription(verdict.error->domain(), verdict.error->code(), text);
    return verdict;
}

Verdict FailureClassifier::verdictOnDeadEndpoint(const NSError &error) {
    return Verdict::waiting(WaitReason::NextTry, error,
                            localizedText("The server that Vimeo named for this video cannot be reached: %1 Vimeo "
                                          "will be asked for another one.",
                                          error.localizedDescription()));
}

FailureClassifier::CommitFate FailureClassifier::fateOfCommit(const UploadContext::Snapshot &request) {
    if (request.transportError) return request.wasSent ? CommitFate::Unknown : CommitFate::NotDone;
    const QVariantMap refusal = refusalIn(request);
    const int status = request.httpStatus;
    if (refusal.isEmpty()) return status == 503 || status == 429 ? CommitFate::NotDone : CommitFate::Unknown;
    const bool concernsTheRequest = isServerTrouble(status) || status == 401 || status == 403 ||
                                    integerValue(refusal.value(QStringLiteral("code"))) == 401;
    return concernsTheRequest ? CommitFate::NotDone : CommitFate::Refused;
}

Verdict FailureClassifier::verdictOnUnansweredCommit() {
    return Verdict::failed(NSError(VimeoPublishPostErrorDomain, VimeoPostErrorEmptyResponse),
                           localizedText("Vimeo did not say whether it has the whole video: the video may be on "
                                         "Vimeo; look there, then retry or remove."));
}

Verdict FailureClassifier::verdictOnUnrecordedCommit() {
    return Verdict::waiting(WaitReason::NextTry, NSError(NSPOSIXErrorDomain, ENOSPC),
                            localizedText("The whole video is at Vimeo, but the upload queue cannot be written. Make "
                                          "room on the disk; it goes on by itself."));
}

} // namespace korvane
