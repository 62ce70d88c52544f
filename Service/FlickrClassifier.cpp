// What becomes of a Flickr upload after a run.
#include "Service/FailureClassifier.h"

#include "Korvane/FlickrPost.h"
#include "Korvane/FlickrResponse.h"
#include "Platform/Foundation/LocalizedText.h"

#include <QHash>
#include <QUrlQuery>

namespace korvane {
namespace {

const QString serviceName = QStringLiteral("Flickr");

// Codes of flickr.com/services/api/upload.api.html; those not listed here are final and have only Flickr's own words.
QString adviceOnCode(qint64 code) {
    static const QHash<qint64, QString> advice{
        {4, localizedText("The file was empty. Check it and share it again.")},
        {5, localizedText("Flickr takes JPEG, PNG, GIF and TIFF pictures.")},
        {6, localizedText("Your upload limit is used up. Free space on Flickr, then retry.")},
        {8, localizedText("The file is too large for Flickr.")},
        {96, localizedText("Sign in again, then retry.")},
        {97, localizedText("Sign in again, then retry.")},
        {98, localizedText("Sign in again, then retry.")},
        {99, localizedText("Sign in again and allow uploads, then retry.")},
        {100, localizedText("Check the application's key, then retry.")},
    };
    return advice.value(code, localizedText("Change what Flickr objects to and share it again, or retry."));
}

// Refusals of the OAuth layer come as a form text instead of XML.
std::optional<Verdict> verdictOnOAuthProblem(const NSError &error) {
    const QString answer = error.localizedDescription().trimmed();
    if (!answer.startsWith(QLatin1String("oauth_problem="))) return std::nullopt;
    const QString problem = QUrlQuery(answer).queryItemValue(QStringLiteral("oauth_problem"));
    if (problem == QLatin1String("nonce_used"))
        return Verdict::waiting(WaitReason::NextTry, error, localizedText("Flickr asks to send the request again."));
    if (problem == QLatin1String("timestamp_refused"))
        return Verdict::failed(
            error, localizedText("Flickr refused the request's time. Set this device's clock, then retry."));
    return Verdict::failed(error, localizedText("Flickr does not accept the sign-in (%1). Sign in again, then retry.",
                                                shownAnswer(problem)));
}

Verdict verdictOnAnswer(const NSError &error, int status) {
    if (const auto verdict = error.code() == -1 ? verdictOnOAuthProblem(error) : std::nullopt) return *verdict;
    if (const auto verdict = Verdict::onServerTrouble(error, status, serviceName)) return *verdict;
    const QString message = shownAnswer(error.localizedDescription());
    if (error.code() == 105 || error.code() == 106)
        return Verdict::waiting(WaitReason::NextTry, error,
                                localizedText("Flickr is not available just now: %1", message));
    const bool saysNothing = error.code() == 0 && !error.userInfo().contains(NSLocalizedDescriptionKey);
    if (error.code() == -1 || saysNothing)
        return Verdict::failed(error, localizedText("Flickr's answer was not understood (HTTP status %1). Retry later.",
                                                    QString::number(status)));
    return Verdict::failed(error, localizedText("Flickr refused the photo: %1 (code %2). %3", message,
                                                QString::number(error.code()), adviceOnCode(error.code())));
}

// The upload code reports success once the photo is on Flickr, whatever became of its place in the photo set; a set
// that was not reached is asked for again, without the photo.
Verdict verdictOnPhotoSet(const RunOutcome &outcome) {
    const auto &request = outcome.lastRequest;
    if (outcome.photoID == 0)
        return {}; // an "ok" without an id: nothing could be asked for without sending the photo again
    const auto undone = [](const NSError &reason) {
        return localizedText("The photo is on Flickr; adding it to its album is still to be done. %1",
                             reason.localizedDescription());
    };
    if (request.transportError)
        return Verdict::waiting(WaitReason::Network, *request.transportError, undone(*request.transportError));
    const NSError error(FlickrResponseErrorDomain, -1);
    if (const auto trouble = Verdict::onServerTrouble(error, request.httpStatus, serviceName))
        return Verdict::waiting(WaitReason::NextTry, error, undone(*trouble->error));
    return {};
}

} // namespace

Verdict FailureClassifier::verdictOnFlickrRun(const RunOutcome &outcome, bool wantsPhotoSet) {
    if (const auto verdict = Verdict::onUnbegunRun(outcome)) return *verdict;
    if (!outcome.error) return wantsPhotoSet ? verdictOnPhotoSet(outcome) : Verdict{};
    const NSError &error = *outcome.error;
    if (error.domain() == NSURLErrorDomain) return Verdict::onTransport(error, serviceName);
    if (error.domain() == FlickrResponseErrorDomain) return verdictOnAnswer(error, outcome.lastRequest.httpStatus);
    if (error.domain() == FlickrPostErrorDomain)
        return Verdict::failed(
            error, localizedText("The photo %1 is no longer in the photo library. Share it again from where it is now.",
                                 outcome.asset));
    return Verdict::failed(error);
}

} // namespace korvane
