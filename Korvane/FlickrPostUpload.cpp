// One photo to be posted to Flickr: its upload (https://www.flickr.com/services/api/upload.api.html).
#include "Korvane/FlickrPost.h"

#include "Korvane/FlickrResponse.h"
#include "Platform/Accounts/ACAccount.h"
#include "Platform/AssetsLibrary/ALAssetsLibrary.h"
#include "Platform/Foundation/Dispatch.h"
#include "Platform/Foundation/KRAssert.h"
#include "Platform/Foundation/NSLog.h"
#include "Platform/ImageIO/CGImageSource.h"
#include "Platform/MobileCoreServices/UTType.h"
#include "Platform/Preferences/KorvaneSettings.h"
#include "Platform/Social/SLRequest.h"
#include "Platform/UIKit/UIImage.h"

namespace korvane {
namespace {

QString uploadEndPoint() {
    return KorvaneSettings::flickrUploadHost() + QStringLiteral("/services/upload/");
}

QString RESTEndPoint() {
    return KorvaneSettings::flickrRESTHost() + QStringLiteral("/services/rest/");
}

} // namespace

bool FlickrPost::uploadToAccount(const std::shared_ptr<ACAccount> &account, const Completion &completion) {
    if (!account) return false;
    if (photoID != 0) {
        if (photoSetID != 0)
            _addToPhotoSet(photoID, account, completion);
        else
            dispatchMain([completion] { completion(std::nullopt); });
        return true;
    }
    const QString scheme = assetURL ? assetURL->scheme() : QString();
    if (scheme == QLatin1String("assets-library")) {
        _encodeAsset(account, completion);
        return true;
    }
    if (scheme == QLatin1String("file")) {
        photoData = NSData::dataWithContentsOfURL(*assetURL);
    } else if (!photoData) {
        NSLog("Got asset URL %@", assetURL);
        KRAssert(false, "0", "-[FlickrPost uploadToAccount:completion:]", "Korvane/FlickrPost", 208);
    }
    _uploadData(photoData, account, completion);
    return true;
}

// The display image goes out, newly encoded, and not the asset's own file: what the user saw in the library is what is
// posted.
void FlickrPost::_encodeAsset(const std::shared_ptr<ACAccount> &account, const Completion &completion) {
    const auto self = std::static_pointer_cast<FlickrPost>(shared_from_this());
    const auto fail = [completion](const NSError &error) { dispatchMain([=] { completion(error); }); };
    ALAssetsLibrary().assetForURL(
        *assetURL,
        [self, account, completion, fail](const std::shared_ptr<ALAsset> &asset) {
            if (!asset) {
                NSLog("Failed to get asset for URL %@", self->assetURL);
                return fail(NSError(FlickrPostErrorDomain, 3));
            }
            const auto representation = asset->defaultRepresentation();
            const UIImage image = UIImage::imageWithCGImage(representation->zoomableDisplayImage());
            self->photoData = UTTypeConformsTo(representation->UTI(), kUTTypePNG)
                                  ? UIImagePNGRepresentation(image)
                                  : UIImageJPEGRepresentation(image, 1.0);
            self->_uploadData(self->photoData, account, completion);
        },
        [self, fail](const NSError &error) {
            NSLog("Failed to get asset for URL %@: %@", self->assetURL, error);
            fail(error);
        });
}

void FlickrPost::_uploadData(const std::optional<NSData> &, const std::shared_ptr<ACAccount> &account,
                             const Completion &completion) {
    KRAssert(photoData.has_value(), "_photoData", "-[FlickrPost _uploadData:toAccount:completion:]",
             "Korvane/FlickrPost", 100);
    const auto self = std::static_pointer_cast<FlickrPost>(shared_from_this());
    sendRequestToEndPoint(
        uploadEndPoint(), _uploadParameters(),
        [self, account, type = _photoContentType()](SLRequest &request) {
            request.setAccount(account);
            request.addMultipartData(*self->photoData, QStringLiteral("photo"), type, std::nullopt);
        },
        [self, account, completion](const std::optional<NSData> &body, const std::optional<NSError> &error) {
            if (error) return completion(error);
            self->_uploadAnswered(body, account, completion);
        });
}

QVariantMap FlickrPost::_uploadParameters() const {
    const auto flag = [](bool set) { return set ? QStringLiteral("1") : QStringLiteral("0"); };
    QVariantMap parameters{{QStringLiteral("is_public"), flag(visibility & FlickrVisibilityPublic)},
                           {QStringLiteral("is_friend"), flag(visibility & FlickrVisibilityFriends)},
                           {QStringLiteral("is_family"), flag(visibility & FlickrVisibilityFamily)},
                           {QStringLiteral("hidden"), hidden ? QStringLiteral("2") : QStringLiteral("1")}};
    if (title) parameters.insert(QStringLiteral("title"), *title);
    if (postDescription) parameters.insert(QStringLiteral("description"), *postDescription);
    if (tags && !tags->isEmpty()) parameters.insert(QStringLiteral("tags"), tags->join(u' '));
    if (safetyLevel != 0) parameters.insert(QStringLiteral("safety_level"), safetyLevel);
    if (contentType != 0) parameters.insert(QStringLiteral("content_type"), contentType);
    return parameters;
}

QString FlickrPost::_photoContentType() const {
    const auto source = CGImageSource::createWithData(*photoData);
    const QString type = source ? source->type() : QString();
    if (type == kUTTypeJPEG) return QStringLiteral("image/jpeg");
    if (type == kUTTypePNG) return QStringLiteral("image/png");
    return QStringLiteral("application/octet-stream");
}

void FlickrPost::_uploadAnswered(const std::optional<NSData> &body, const std::shared_ptr<ACAccount> &account,
                                 const Completion &completion) {
    const auto response = FlickrResponse::responseWithData(body);
    if (!response->isSuccess()) {
        QVariantMap userInfo;
        if (response->errorDescription) userInfo.insert(NSLocalizedDescriptionKey, *response->errorDescription);
        return completion(NSError(FlickrResponseErrorDomain, response->errorCode, userInfo));
    }
    if (checkpoint && response->photoID != 0) checkpoint(response->photoID);
    if (photoSetID == 0) return completion(std::nullopt);
    _addToPhotoSet(response->photoID, account, completion);
}

// The photo is on Flickr by now: whatever becomes of its place in the set, the upload has succeeded.
void FlickrPost::_addToPhotoSet(qint64 uploadedPhotoID, const std::shared_ptr<ACAccount> &account,
                                const Completion &completion) {
    const QVariantMap parameters{{QStringLiteral("method"), QStringLiteral("flickr.photosets.addPhoto")},
                                 {QStringLiteral("photoset_id"), QString::number(photoSetID)},
                                 {QStringLiteral("photo_id"), QString::number(uploadedPhotoID)}};
    const auto self = std::static_pointer_cast<FlickrPost>(shared_from_this());
    sendRequestToEndPoint(
        RESTEndPoint(), parameters, [account](SLRequest &request) { request.setAccount(account); },
        [self, uploadedPhotoID, completion](const std::optional<NSData> &, const std::optional<NSError> &error) {
            if (error)
                NSLog("########### Failed to add %lli to photo set %lli! %@", uploadedPhotoID, self->photoSetID, error);
            completion(std::nullopt);
        });
}

} // namespace korvane
