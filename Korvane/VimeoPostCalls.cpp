// One video to be published to Vimeo: calls of the REST API (version 2) and their answers.
#include "Korvane/VimeoPost.h"

#include "Platform/Accounts/ACAccount.h"
#include "Platform/Foundation/NSJSONSerialization.h"
#include "Platform/Foundation/NSLog.h"
#include "Platform/Foundation/NSNumber.h"
#include "Platform/Preferences/KorvaneSettings.h"
#include "Platform/Social/SLRequest.h"

namespace korvane {
namespace {

constexpr qint64 serviceCodeUnauthorized = 401;
constexpr qint64 serviceCodeRestart = 708;

NSError postError(VimeoPostErrorCode code) {
    return NSError(VimeoPublishPostErrorDomain, code);
}

VimeoPostErrorCode errorCodeOfServiceCode(qint64 code) {
    if (code == serviceCodeUnauthorized) return VimeoPostErrorServiceCode401;
    return code == serviceCodeRestart ? VimeoPostErrorServiceCode708 : VimeoPostErrorBadResponse;
}

QString jsonText(const QVariantMap &dictionary) {
    return redacted(QString::fromUtf8(NSJSONSerialization::dataWithJSONObject(dictionary).value_or(QByteArray())))
        .simplified();
}

std::shared_ptr<SLRequest> requestOfCall(const NSURL &url, const char *method, QVariantMap parameters,
                                         const std::shared_ptr<ACAccount> &account) {
    parameters.insert(QStringLiteral("method"), QStringLiteral("vimeo.videos.") + QLatin1String(method));
    const auto request = SLRequest::requestForServiceType(SLServiceTypeVimeo, SLRequestMethodPOST, url, parameters);
    request->setAccount(account);
    return request;
}

} // namespace

NSURL VimeoPost::_endpointURL() {
    return *NSURL::URLWithString(KorvaneSettings::vimeoRESTHost() + QStringLiteral("/api/rest/v2?format=json"));
}

// The status of the answer says nothing here: refusals come with 200 as well.
void VimeoPost::_call(const char *method, const QVariantMap &parameters,
                      const std::function<void(const Answer &)> &handler) {
    requestOfCall(*_baseURL, method, parameters, account)
        ->performRequestWithHandler([handler](const std::optional<NSData> &body, const NSHTTPURLResponse &,
                                              const std::optional<NSError> &requestError) {
            Answer answer;
            answer.object = dictionaryWithResponseData(body, &answer.parseError);
            answer.requestError = requestError;
            handler(answer);
        });
}

std::optional<QVariantMap> VimeoPost::dictionaryWithResponseData(const std::optional<NSData> &data,
                                                                 std::optional<NSError> *error) {
    const auto fail = [error](VimeoPostErrorCode code) {
        setError(error, postError(code));
        return std::nullopt;
    };
    if (!data || data->length() == 0) {
        NSLog("Empty response data provided");
        return fail(VimeoPostErrorEmptyResponse);
    }
    QString problem;
    const auto value = NSJSONSerialization::JSONObjectWithData(data->bytes(), &problem);
    if (!value) {
        NSLog("Failed to parse response data: %@", problem);
        return fail(VimeoPostErrorBadResponse);
    }
    if (value->typeId() != QMetaType::QVariantMap) {
        NSLog("Failed to parse non-dictionary response data");
        return fail(VimeoPostErrorBadResponse);
    }
    const QVariantMap answer = value->toMap();
    if (!answer.contains(QStringLiteral("err"))) return answer;
    const QVariant code = answer.value(QStringLiteral("err")).toMap().value(QStringLiteral("code"));
    NSLog("Vimeo Error Response: %@", jsonText(answer));
    return fail(errorCodeOfServiceCode(integerValue(code)));
}

void VimeoPost::getAvailableQuotaForAccount(const std::shared_ptr<ACAccount> &account,
                                            const VimeoQuotaCompletion &completion) {
    const auto request = requestOfCall(_endpointURL(), "upload.getQuota", {}, account);
    request->performRequestWithHandler([completion](const std::optional<NSData> &body, const NSHTTPURLResponse &,
                                                    const std::optional<NSError> &requestError) {
        if (!body) return completion(-1, false, false, requestError);
        std::optional<NSError> parseError;
        const auto answer = dictionaryWithResponseData(body, &parseError);
        if (!answer) return completion(-1, false, false, parseError);
        const QVariantMap user = answer->value(QStringLiteral("user")).toMap();
        const QVariantMap space = user.value(QStringLiteral("upload_space")).toMap();
        completion(integerValue(space.value(QStringLiteral("free"))),
                   !boolValue(user.value(QStringLiteral("hd_quota"))),
                   !boolValue(user.value(QStringLiteral("sd_quota"))), std::nullopt);
    });
}

} // namespace korvane
