// Loads the user's photo sets.
#include "FlickrPhotoSetManager.h"

#include "Korvane/FlickrPhotoSetResponse.h"
#include "Korvane/FlickrResponse.h"
#include "Platform/Accounts/ACAccount.h"
#include "Platform/Foundation/KRAssert.h"
#include "Platform/Foundation/LocalizedText.h"
#include "Platform/Foundation/NSLog.h"
#include "Platform/Preferences/KorvaneSettings.h"
#include "Platform/Social/SLRequest.h"

namespace korvane {
namespace {

std::optional<NSError> problemOf(const FlickrPhotoSetResponse &response) {
    if (response.isSuccess()) return std::nullopt;
    const QString message = redacted(response.errorDescription().value_or(QString()));
    return NSError::errorWithDescription(FlickrResponseErrorDomain, 0,
                                         message.isEmpty() ? localizedText("Flickr's answer is not understood.")
                                                           : localizedText("Flickr says: %1", message));
}

} // namespace

std::shared_ptr<FlickrPhotoSetManager> FlickrPhotoSetManager::init() {
    return std::shared_ptr<FlickrPhotoSetManager>(new FlickrPhotoSetManager);
}

void FlickrPhotoSetManager::refreshPhotoSets() {
    _photoSets.reset();
    _problem.reset();
    const auto self = std::static_pointer_cast<FlickrPhotoSetManager>(shared_from_this());
    sendRequestToEndPoint(
        KorvaneSettings::flickrRESTHost() + QStringLiteral("/services/rest/"),
        {{QStringLiteral("method"), QStringLiteral("flickr.photosets.getList")},
         {QStringLiteral("format"), QStringLiteral("rest")}},
        [self](SLRequest &request) {
            const auto delegate = self->delegate();
            request.setAccount(delegate ? delegate->flickrAccount() : nullptr);
        },
        [self](const auto &body, const auto &error) { self->_photoSetsAnswered(body, error); });
}

void FlickrPhotoSetManager::_photoSetsAnswered(const std::optional<NSData> &body, const std::optional<NSError> &error) {
    if (error) NSLog("########### Error %@", error);
    const auto response = FlickrPhotoSetResponse::responseWithData(body);
    _photoSets = response->photoSets;
    _problem = error ? error : problemOf(*response);
    const auto table = tableDelegate();
    KRAssert(table != nullptr, "_tableDelegate", "-[FlickrPhotoSetManager refreshPhotoSets]", "FlickrPhotoSetManager",
             157);
    table->reloadData();
}

} // namespace korvane
