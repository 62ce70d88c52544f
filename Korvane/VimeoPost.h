// One video to be published to Vimeo, with the choices that go with it.
#pragma once

#include "Korvane/KRDataReader.h"
#include "Korvane/VimeoCheckpoint.h"
#include "Korvane/VimeoPostDelegate.h"
#include "Platform/Foundation/NSData.h"
#include "Platform/Foundation/NSURL.h"
#include "Platform/Foundation/NSURLRequest.h"

#include <QStringList>

#include <atomic>
#include <functional>
#include <memory>

namespace korvane {

class ACAccount;
class ALAsset;
class ALAssetsLibrary;
class AVAssetExportSession;
class DispatchTimer;

extern const QString VimeoPublishPostErrorDomain;

// All without details: the code carries the meaning.
enum VimeoPostErrorCode : qint64 {
    VimeoPostErrorUnsupportedAsset = 1, // neither a usable URL nor data
    VimeoPostErrorMissingAccountOrTitle = 2,
    VimeoPostErrorBadResponse = 3,    // an answer that is no JSON object, another refusal, or a verify unanswered
    VimeoPostErrorServiceCode401 = 4, // Vimeo's code 401
    VimeoPostErrorServiceCode708 = 5, // Vimeo's code 708
    VimeoPostErrorEmptyResponse = 6,  // no answer, or an empty one
    VimeoPostErrorQuotaExceeded = 7,  // larger than the account's free space
    VimeoPostErrorNoSDQuota = 8,      // the account takes no videos
};

enum VimeoVideoSize : qint64 {
    VimeoVideoSizeSmall = 0,
    VimeoVideoSizeMedium = 1,
    VimeoVideoSizeLarge = 2, // the only one that needs quota for high definition
};

// Any other value is private too.
enum VimeoPrivacySetting : qint64 {
    VimeoPrivacyPublic = 0,
    VimeoPrivacyPrivate = 1,
};

enum VimeoUploadState : qint32 {
    VimeoUploadStateIdle = 0,
    VimeoUploadStateCheckingQuota = 1,
    VimeoUploadStateGettingTicket = 2,
    VimeoUploadStateUploadingChunk = 3,
    VimeoUploadStateVerifyingChunk = 4,
    VimeoUploadStateCommitting = 5,
    VimeoUploadStateSettingTitle = 6,
    VimeoUploadStateSettingDescription = 7,
    VimeoUploadStateAddingTags = 8,
    VimeoUploadStateSettingPrivacy = 10,
};

// Free space in bytes, -1 with an error.
using VimeoQuotaCompletion =
    std::function<void(qint64 freeSpace, bool noHDQuota, bool noSDQuota, const std::optional<NSError> &error)>;

// Filled by the compose side, carried to the upload service as a record, rebuilt and uploaded there. One upload at a
// time; its steps follow one another on several threads and keep the post alive.
class VimeoPost : public std::enable_shared_from_this<VimeoPost> {
public:
    static std::shared_ptr<VimeoPost> init();
    // From a record; no key is required, unknown ones are passed over, a value of the wrong type counts as missing.
    static std::shared_ptr<VimeoPost> initWithDictionary(const QVariantMap &dictionary);
    // The record: property-list values, assetData as an NSData.
    QVariantMap serializedDictionary() const;

    void setDelegate(std::weak_ptr<VimeoPostDelegate> delegate) { _delegate = std::move(delegate); }

    std::optional<NSURL> assetURL;   // "assets-library" or "file"
    std::optional<NSData> assetData; // the whole video, where there is no usable URL
    std::optional<QString> title;    // required for the upload
    std::optional<QString> postDescription;
    std::optional<QStringList> tags;
    quint64 accessType = 0; // carried along; no step reads it
    qint64 videoSize = VimeoVideoSizeSmall;
    qint64 privacySettings = VimeoPrivacyPublic;
    std::shared_ptr<ACAccount> account;       // set by the upload
    std::shared_ptr<ALAsset> asset;           // preferred source of the bytes, where a caller has set it
    std::optional<NSURL> exportedVideoURL;    // the temporary file of an export; removed when the upload ends
    std::shared_ptr<KRDataReader> dataReader; // over the file whose bytes are uploaded

    // Folder of the temporary file; empty: the process's temporary directory. File names there are unique to the second
    // only.
    QString temporaryDirectory;

    const std::shared_ptr<ALAssetsLibrary> &assetsLibrary(); // made on first use

    // Sets the upload going; its end is heard by the delegate. False, with the error placed and the delegate hearing
    // nothing, if it cannot start. An empty video stops the process at its first chunk. Thread: any.
    bool uploadToAccount(const std::shared_ptr<ACAccount> &account, std::optional<NSError> *error = nullptr);

    // Goes on where an earlier upload of the same video got to: after the commit with the title, after the ticket with
    // a verify, else from the start. A ticket that Vimeo no longer takes gives way to a new one. A library video needs
    // the reader over its earlier export in dataReader; without it the upload starts anew. Otherwise as
    // uploadToAccount.
    bool resumeUploadToAccount(const std::shared_ptr<ACAccount> &account, const VimeoCheckpoint &checkpoint,
                               std::optional<NSError> *error = nullptr);
    VimeoCheckpoint checkpoint() const;
    // Hears each change of the checkpoint, and the end of an export, on the thread of the step. The upload goes on when
    // it calls proceed, from any thread; a commit is only sent after that. Empty: nobody is asked.
    std::function<void(const VimeoCheckpoint &checkpoint, std::function<void()> proceed)> checkpointChanged;

    // Informative; the upload itself never looks at it.
    VimeoUploadState uploadState() const { return VimeoUploadState(_uploadState.load()); }

    // Bytes of the video: of the asset, the data or the reader's file, whichever exists first; else 0.
    qint64 postSize() const;

    // Asks for the account's quota; the completion runs once, on the job's queue of the request layer.
    static void getAvailableQuotaForAccount(const std::shared_ptr<ACAccount> &account,
                                            const VimeoQuotaCompletion &completion);
    // The object of an answer; null, with an error of VimeoPublishPostErrorDomain, if it is a failure.
    static std::optional<QVariantMap> dictionaryWithResponseData(const std::optional<NSData> &data,
                                                                 std::optional<NSError> *error);

private:
    VimeoPost() = default;
    void _initWithDictionary(const QVariantMap &dictionary);
    static NSURL _endpointURL();
    static bool _isUsingCellular();

    struct Answer {
        std::optional<QVariantMap> object;
        std::optional<NSError> parseError;   // where there is no object
        std::optional<NSError> requestError; // of the request layer
    };
    // method: without "vimeo.videos.".
    void _call(const char *method, const QVariantMap &parameters, const std::function<void(const Answer &)> &handler);

    void _exportVideo();
    void _exportEnded(const std::shared_ptr<AVAssetExportSession> &session, const NSURL &outputURL);
    void _watchExport(const std::shared_ptr<AVAssetExportSession> &session);

    void _forgetTicket();
    void _checkQuota();
    void _getTicket();
    void _uploadData();
    std::optional<NSData> _chunk(quint64 start, quint64 size) const;
    NSMutableURLRequest _putRequest() const;
    void _verify();
    void _verified(const NSHTTPURLResponse &response);
    void _ticketRefused(int status);
    void _commit();
    void _committed(const Answer &answer);
    void _setTitle();
    void _setDescription();
    void _setTags();
    void _setPrivacy();

    QString _fileName() const;
    std::optional<QString> _tags() const;
    void _proceedAfterCheckpoint(std::function<void()> next);
    void _warningWithCode(qint64 code);
    void failWithError(const NSError &error);
    void failWithErrorCode(VimeoPostErrorCode code);
    void _cleanup();

    std::weak_ptr<VimeoPostDelegate> _delegate;
    std::optional<NSURL> _baseURL;                           // the REST endpoint
    std::atomic<qint32> _uploadState = VimeoUploadStateIdle; // read from any thread
    QVariant _videoID;
    QVariant _ticketID;
    std::optional<NSURL> _uploadEndpoint;
    bool _continuingUpload = false; // a verify has shown that bytes remain
    quint64 _countOfBytesStored = 0;
    qint32 _retryCount = 0; // restarts after a failed commit; never reset
    bool _canUploadOverCellular = false;
    bool _commitSent = false;
    bool _ticketIsInDoubt = false; // it is of an earlier upload, and no verify has shown yet that it still counts
    std::shared_ptr<ALAssetsLibrary> _assetsLibrary;
    std::shared_ptr<DispatchTimer> _exportTimer;
};

} // namespace korvane
