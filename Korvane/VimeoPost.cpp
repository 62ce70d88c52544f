// One video to be published to Vimeo: its record, its size, and how an upload ends.
#include "Korvane/VimeoPost.h"

#include "Platform/AssetsLibrary/ALAssetsLibrary.h"
#include "Platform/Foundation/NSFileManager.h"
#include "Platform/Foundation/NSLog.h"
#include "Platform/Foundation/NSNumber.h"
#include "Platform/Foundation/PropertyList.h"

namespace korvane {

const QString VimeoPublishPostErrorDomain = QStringLiteral("PublishToVimeoPostErrorDomain");

std::shared_ptr<VimeoPost> VimeoPost::init() {
    const std::shared_ptr<VimeoPost> post(new VimeoPost);
    post->_baseURL = _endpointURL();
    return post;
}

std::shared_ptr<VimeoPost> VimeoPost::initWithDictionary(const QVariantMap &dictionary) {
    const std::shared_ptr<VimeoPost> post(new VimeoPost);
    post->_initWithDictionary(dictionary);
    return post;
}

void VimeoPost::_initWithDictionary(const QVariantMap &dictionary) {
    _baseURL = _endpointURL();
    const auto value = [&](const char *key) { return dictionary.value(QLatin1String(key)); };
    if (const auto url = stringValue(value("assetURL")))
        assetURL = NSURL::URLWithString(*url);
    else
        assetData = dataValue(value("assetData"));
    title = stringValue(value("title"));
    postDescription = stringValue(value("description"));
    tags = stringListValue(value("tags"));
    accessType = quint64(integerValue(value("accessType")));
    privacySettings = integerValue(value("privacy"));
    videoSize = integerValue(value("videoSize"));
}

QVariantMap VimeoPost::serializedDictionary() const {
    QVariantMap dictionary;
    if (assetURL) dictionary.insert(QStringLiteral("assetURL"), assetURL->absoluteString());
    if (assetData) dictionary.insert(QStringLiteral("assetData"), QVariant::fromValue(*assetData));
    if (title) dictionary.insert(QStringLiteral("title"), *title);
    if (postDescription) dictionary.insert(QStringLiteral("description"), *postDescription);
    if (tags) dictionary.insert(QStringLiteral("tags"), *tags);
    dictionary.insert(QStringLiteral("accessType"), accessType);
    dictionary.insert(QStringLiteral("privacy"), quint64(privacySettings));
    dictionary.insert(QStringLiteral("videoSize"), quint64(videoSize));
    return dictionary;
}

const std::shared_ptr<ALAssetsLibrary> &VimeoPost::assetsLibrary() {
    if (!_assetsLibrary) _assetsLibrary = std::make_shared<ALAssetsLibrary>();
    return _assetsLibrary;
}

qint64 VimeoPost::postSize() const {
    if (asset) return asset->defaultRepresentation()->size();
    if (assetData) return assetData->length();
    if (dataReader) return qint64(dataReader->length());
    return 0;
}

VimeoCheckpoint VimeoPost::checkpoint() const {
    return {_ticketID, _uploadEndpoint, _countOfBytesStored, _commitSent, _videoID, _canUploadOverCellular};
}

void VimeoPost::_proceedAfterCheckpoint(std::function<void()> next) {
    if (!checkpointChanged) return next();
    checkpointChanged(checkpoint(), std::move(next));
}

// The upload goes on from the reader's open file, so what an export left is no longer needed by its name.
void VimeoPost::_warningWithCode(qint64 code) {
    if (const auto delegate = _delegate.lock()) delegate->vimeoPostWarningDuringUpload(shared_from_this(), code);
    _cleanup();
}

void VimeoPost::failWithError(const NSError &error) {
    NSLog("Vimeo error: %@", error);
    if (const auto delegate = _delegate.lock()) delegate->vimeoPostUploadFailedWithError(shared_from_this(), error);
    _cleanup();
}

void VimeoPost::failWithErrorCode(VimeoPostErrorCode code) {
    failWithError(NSError(VimeoPublishPostErrorDomain, code));
}

// Only the exported copy; a file that the caller named stays.
void VimeoPost::_cleanup() {
    if (exportedVideoURL) NSFileManager::defaultManager().removeItemAtURL(*exportedVideoURL);
}

} // namespace korvane
