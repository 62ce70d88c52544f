// One video to be published to Vimeo: the steps of its upload, in the order in which they run.
#include "Korvane/VimeoPost.h"

#include "Korvane/KRLog.h"
#include "Platform/Accounts/ACAccount.h"
#include "Platform/AssetsLibrary/ALAssetsLibrary.h"
#include "Platform/Foundation/Dispatch.h"
#include "Platform/Foundation/KRAssert.h"
#include "Platform/Foundation/NSNumber.h"
#include "Platform/Foundation/NSURLConnection.h"
#include "Platform/Social/SLRequest.h"

#include <algorithm>

namespace korvane {
namespace {

constexpr quint64 maximumChunkSize = 2'097'152;
constexpr int maximumRestarts = 3;

// The number behind the first "-" of a Range header: what the endpoint counts as stored.
quint64 bytesStoredOfRange(const QByteArray &range) {
    const qsizetype dash = range.indexOf('-');
    if (dash < 0) return 0;
    return quint64(integerValue(QString::fromLatin1(range.mid(dash + 1)).section(u'\n', 0, 0)));
}

} // namespace

bool VimeoPost::uploadToAccount(const std::shared_ptr<ACAccount> &uploadAccount, std::optional<NSError> *error) {
    if (!uploadAccount || !title) {
        setError(error, NSError(VimeoPublishPostErrorDomain, VimeoPostErrorMissingAccountOrTitle));
        return false;
    }
    _continuingUpload = false;
    _forgetTicket();
    _canUploadOverCellular = _isUsingCellular(); // an upload begun elsewhere never moves onto the cellular network
    account = uploadAccount;
    const QString scheme = assetURL ? assetURL->scheme() : QString();
    if (scheme == QLatin1String("assets-library")) {
        _exportVideo();
        return true;
    }
    if (scheme == QLatin1String("file")) {
        const auto reader = KRDataReader::dataReaderWithURL(assetURL, error);
        if (!reader) return false;
        dataReader = reader;
        _checkQuota();
        return true;
    }
    if (assetData) {
        _checkQuota();
        return true;
    }
    NSLog("Unsupported scheme for asset URL %@", assetURL);
    setError(error, NSError(VimeoPublishPostErrorDomain, VimeoPostErrorUnsupportedAsset));
    return false;
}

bool VimeoPost::resumeUploadToAccount(const std::shared_ptr<ACAccount> &uploadAccount,
                                      const VimeoCheckpoint &checkpoint, std::optional<NSError> *error) {
    const QString scheme = assetURL ? assetURL->scheme() : QString();
    const bool isLibraryVideo = scheme == QLatin1String("assets-library");
    const bool isFile = scheme == QLatin1String("file");
    const bool isReadable = (isLibraryVideo && dataReader) || isFile || assetData;
    if (!uploadAccount || !title || !(isReadable || checkpoint.videoID.isValid()))
        return uploadToAccount(uploadAccount, error);
    account = uploadAccount;
    _canUploadOverCellular = checkpoint.mayUseCellular.value_or(_isUsingCellular());
    _videoID = checkpoint.videoID;
    if (_videoID.isValid()) {
        _setTitle();
        return true;
    }
    if (isFile) dataReader = KRDataReader::dataReaderWithURL(assetURL, error);
    if (isFile && !dataReader) return false;
    if (!checkpoint.hasTicket()) {
        _checkQuota();
        return true;
    }
    _ticketID = checkpoint.ticketID;
    _uploadEndpoint = checkpoint.endpoint;
    _countOfBytesStored = checkpoint.bytesStored;
    _ticketIsInDoubt = true;
    _verify();
    return true;
}

void VimeoPost::_forgetTicket() {
    _ticketID = {};
    _uploadEndpoint.reset();
    _countOfBytesStored = 0;
    _commitSent = false;
    _ticketIsInDoubt = false;
}

void VimeoPost::_checkQuota() {
    KRLog("Check Quota");
    _uploadState = VimeoUploadStateCheckingQuota;
    getAvailableQuotaForAccount(account, [self = shared_from_this()](qint64 freeSpace, bool noHDQuota, bool noSDQuota,
                                                                     const std::optional<NSError> &error) {
        if (error) return self->failWithError(*error);
        // Unsigned: an unknown free space of -1 is a huge one.
        if (quint64(self->postSize()) > quint64(freeSpace)) return self->failWithErrorCode(VimeoPostErrorQuotaExceeded);
        if (noSDQuota) return self->failWithErrorCode(VimeoPostErrorNoSDQuota);
        self->_getTicket();
        if (noHDQuota && self->videoSize == VimeoVideoSizeLarge) self->_warningWithCode(VimeoPostWarningNoHDQuota);
    });
}

void VimeoPost::_getTicket() {
    KRLog("Get Ticket");
    _uploadState = VimeoUploadStateGettingTicket;
    _call("upload.getTicket", {{QStringLiteral("upload_method"), QStringLiteral("streaming")}},
          [self = shared_from_this()](const Answer &answer) {
              if (!answer.object) return self->failWithError(*answer.parseError);
              const QVariantMap ticket = answer.object->value(QStringLiteral("ticket")).toMap();
              self->_ticketID = ticket.value(QStringLiteral("id"));
              self->_uploadEndpoint = NSURL::URLWithString(ticket.value(QStringLiteral("endpoint")).toString());
              self->_proceedAfterCheckpoint([self] { self->_uploadData(); });
          });
}

void VimeoPost::_uploadData() {
    _uploadState = VimeoUploadStateUploadingChunk;
    const quint64 fileSize = quint64(postSize());
    const quint64 start = _continuingUpload ? _countOfBytesStored : 0;
    const quint64 chunkSize = std::min(fileSize - start, maximumChunkSize);
    KRLog("Uploading chunk with range(%@, %@) (max %@)", QString::number(start), QString::number(chunkSize),
          QString::number(start + chunkSize));
    if (chunkSize == 0) {
        NSLog("########### Got chunk size of 0. fileSize = %lu, starting byte = %lu", fileSize, start);
        KRAssert(false, "chunkSize > 0", "-[VimeoPost _uploadData]", "Korvane/VimeoPost", 381);
    }
    NSMutableURLRequest request = _putRequest();
    request.addValueForHTTPHeaderField("video/mp4", "Content-Type");
    request.addValueForHTTPHeaderField(QByteArray::number(chunkSize), "Content-Length");
    if (const auto chunk = _chunk(start, chunkSize)) request.HTTPBody = {*chunk};
    request.allowsCellularAccess = _canUploadOverCellular;
    // The endpoint wants the range of all that is left, also where the body holds only the first part of it.
    if (_continuingUpload)
        request.addValueForHTTPHeaderField("bytes " + QByteArray::number(start) + '-' +
                                               QByteArray::number(fileSize - 1) + '/' + QByteArray::number(fileSize),
                                           "Content-Range");
    dispatchGlobal([self = shared_from_this(), request] {
        std::optional<NSError> error;
        const auto body = NSURLConnection::sendSynchronousRequest(request, nullptr, &error);
        dispatchMain([self, answered = body.has_value(), error] {
            if (!answered) return self->failWithError(*error);
            self->_verify();
        });
    });
}

std::optional<NSData> VimeoPost::_chunk(quint64 start, quint64 size) const {
    if (asset) return asset->defaultRepresentation()->data().subdata(qint64(start), qint64(size));
    if (assetData) return assetData->subdata(qint64(start), qint64(size));
    return dataReader ? dataReader->dataWithRange(start, size) : std::nullopt;
}

NSMutableURLRequest VimeoPost::_putRequest() const {
    // A ticket without a usable endpoint has nowhere to go; the send says so.
    const NSURL endpoint = _uploadEndpoint.value_or(NSURL::fileURLWithPath({}));
    const auto request = SLRequest::requestForServiceType(SLServiceTypeVimeo, SLRequestMethodPUT, endpoint, {});
    request->setAccount(account);
    return request->preparedURLRequest();
}

void VimeoPost::_verify() {
    KRLog("Verifying chunk");
    _uploadState = VimeoUploadStateVerifyingChunk;
    NSMutableURLRequest request = _putRequest();
    request.addValueForHTTPHeaderField("0", "Content-Length");
    request.addValueForHTTPHeaderField("bytes */*", "Content-Range");
    dispatchGlobal([self = shared_from_this(), request] {
        NSHTTPURLResponse response;
        const auto body = NSURLConnection::sendSynchronousRequest(request, &response, nullptr);
        dispatchMain([self, answered = body.has_value(), response] {
            if (!answered) return self->failWithErrorCode(VimeoPostErrorBadResponse);
            self->_verified(response);
        });
    });
}

void VimeoPost::_verified(const NSHTTPURLResponse &response) {
    if (std::exchange(_ticketIsInDoubt, false) && response.statusCode >= 400)
        return _ticketRefused(response.statusCode);
    _countOfBytesStored = bytesStoredOfRange(response.valueForHTTPHeaderField("Range").value_or(QByteArray()));
    const quint64 size = quint64(postSize());
    NSLog("verify: %lu (%lli)", _countOfBytesStored, qint64(size));
    // In whole numbers: 0 until all is stored, then 1. Those who want bytes have the checkpoint.
    if (const auto delegate = _delegate.lock())
        delegate->vimeoPostUploadProgressDidChange(shared_from_this(),
                                                   size == 0 ? 0.0F : float(_countOfBytesStored / size));
    _proceedAfterCheckpoint([self = shared_from_this(), size] {
        if (self->_countOfBytesStored >= size) return self->_commit();
        self->_continuingUpload = true;
        self->_uploadData();
    });
}

// The ticket of an earlier upload has run out. Other refusals say nothing about the ticket.
void VimeoPost::_ticketRefused(int status) {
    if (status != 400 && status != 404 && status != 410) return failWithErrorCode(VimeoPostErrorBadResponse);
    _forgetTicket();
    _proceedAfterCheckpoint([self = shared_from_this()] { self->_checkQuota(); });
}

void VimeoPost::_commit() {
    KRLog("Committing Video");
    _uploadState = VimeoUploadStateCommitting;
    _commitSent = true;
    _proceedAfterCheckpoint([self = shared_from_this()] {
        self->_call("upload.complete",
                    {{QStringLiteral("ticket_id"), self->_ticketID}, {QStringLiteral("filename"), self->_fileName()}},
                    [self](const Answer &answer) { self->_committed(answer); });
    });
}

void VimeoPost::_committed(const Answer &answer) {
    if (answer.object) {
        _videoID = answer.object->value(QStringLiteral("ticket")).toMap().value(QStringLiteral("video_id"));
        _commitSent = textValue(_videoID).isEmpty(); // an answer without an id leaves it open
        return _proceedAfterCheckpoint([self = shared_from_this()] { self->_setTitle(); });
    }
    // Only the request layer's own error starts anew; Vimeo's word for it, found by the parser, is final.
    const auto &requestError = answer.requestError;
    const bool asksForRestart = requestError && requestError->domain() == VimeoPublishPostErrorDomain &&
                                requestError->code() == VimeoPostErrorServiceCode708;
    if (!asksForRestart || _retryCount++ >= maximumRestarts)
        return failWithError(requestError ? *requestError : *answer.parseError);
    std::optional<NSError> startError;
    if (!uploadToAccount(account, &startError)) failWithError(*startError);
}

// A file is announced by its whole path: this is what the service has always been told.
QString VimeoPost::_fileName() const {
    if (asset) return asset->defaultRepresentation()->filename();
    if (assetURL && assetURL->scheme() == QLatin1String("file")) return assetURL->path();
    return QStringLiteral("video.mp4");
}

void VimeoPost::_setTitle() {
    KRLog("Setting title to \"%@\"", title);
    _uploadState = VimeoUploadStateSettingTitle;
    _call("setTitle", {{QStringLiteral("video_id"), _videoID}, {QStringLiteral("title"), *title}},
          [self = shared_from_this()](const Answer &answer) {
              if (!answer.object) return self->failWithError(*answer.parseError);
              self->_setDescription();
          });
}

// A video without its description is no reason to call the upload failed.
void VimeoPost::_setDescription() {
    KRLog("Setting description to \"%@\"", postDescription);
    _uploadState = VimeoUploadStateSettingDescription;
    if (!postDescription) return _setTags();
    _call("setDescription", {{QStringLiteral("video_id"), _videoID}, {QStringLiteral("description"), *postDescription}},
          [self = shared_from_this()](const Answer &) { self->_setTags(); });
}

std::optional<QString> VimeoPost::_tags() const {
    return tags ? std::optional(tags->join(QStringLiteral(", "))) : std::nullopt;
}

void VimeoPost::_setTags() {
    const auto joined = _tags();
    KRLog("Setting tags to \"%@\"", joined);
    if (!joined) return _setPrivacy();
    _uploadState = VimeoUploadStateAddingTags;
    _call("addTags", {{QStringLiteral("video_id"), _videoID}, {QStringLiteral("tags"), *joined}},
          [self = shared_from_this()](const Answer &answer) {
              if (!answer.object) return self->failWithError(*answer.parseError);
              self->_setPrivacy();
          });
}

void VimeoPost::_setPrivacy() {
    _uploadState = VimeoUploadStateSettingPrivacy;
    KRLog("Setting privacy to %i", privacySettings);
    const QString viewers =
        privacySettings == VimeoPrivacyPublic ? QStringLiteral("anybody") : QStringLiteral("nobody");
    _call("setPrivacy", {{QStringLiteral("video_id"), _videoID}, {QStringLiteral("privacy"), viewers}},
          [self = shared_from_this()](const Answer &answer) {
              if (!answer.object) return self->failWithError(*answer.parseError);
              if (const auto delegate = self->_delegate.lock()) delegate->vimeoPostUploadSucceeded(self);
              self->_cleanup();
          });
}

} // namespace korvane
