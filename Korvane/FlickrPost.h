// One photo to be posted to Flickr, with the choices that go with it.
#pragma once

#include "Korvane/FlickrRequest.h"
#include "Platform/Foundation/NSURL.h"

#include <QStringList>

namespace korvane {

class ACAccount;

extern const QString FlickrPostErrorDomain; // code 3: the photo-library asset was not found

// Bits of a photo's visibility; none of them: only the owner sees it.
enum FlickrVisibility : quint32 {
    FlickrVisibilityPublic = 1,
    FlickrVisibilityFriends = 2,
    FlickrVisibilityFamily = 4,
};

// Filled by the compose side, carried to the upload service as a record, rebuilt and uploaded there.
class FlickrPost : public FlickrRequest {
public:
    // Runs once, on the main thread; null: the photo is on Flickr.
    using Completion = std::function<void(const std::optional<NSError> &error)>;

    static std::shared_ptr<FlickrPost> init();
    // From a record; no key is required, unknown ones are passed over, a value of the wrong type counts as missing.
    static std::shared_ptr<FlickrPost> initWithDictionary(const QVariantMap &dictionary);
    // The record: property-list values, photoData as an NSData.
    QVariantMap serializedDictionary() const;
    static bool supportsSecureCoding() { return true; }

    std::optional<NSURL> assetURL;   // "assets-library" or "file"
    std::optional<NSData> photoData; // the encoded photo
    std::optional<QString> title;
    std::optional<QString> postDescription;
    std::optional<QStringList> tags;
    qint64 photoSetID = 0;  // 0: no photo set
    quint32 visibility = 0; // FlickrVisibility bits
    qint32 safetyLevel = 0; // 0: not sent
    qint32 contentType = 0; // 0: not sent
    bool hidden = false;

    // The id that Flickr gave the photo in an earlier run, else 0. With an id the upload only adds the photo to its
    // set.
    qint64 photoID = 0;
    // Hears the id as soon as Flickr has answered with it, on the main thread, before anything else is done with it.
    std::function<void(qint64 photoID)> checkpoint;

    // Uploads the photo, and adds it to its photo set. False, and no completion, without an account. Thread: any; a
    // file is opened on the calling thread. A post without bytes and usable URL stops the process.
    bool uploadToAccount(const std::shared_ptr<ACAccount> &account, const Completion &completion);

private:
    FlickrPost() = default;
    void _initWithDictionary(const QVariantMap &dictionary);
    void _encodeAsset(const std::shared_ptr<ACAccount> &account, const Completion &completion);
    void _uploadData(const std::optional<NSData> &data, const std::shared_ptr<ACAccount> &account,
                     const Completion &completion);
    QVariantMap _uploadParameters() const;
    QString _photoContentType() const;
    void _uploadAnswered(const std::optional<NSData> &body, const std::shared_ptr<ACAccount> &account,
                         const Completion &completion);
    void _addToPhotoSet(qint64 uploadedPhotoID, const std::shared_ptr<ACAccount> &account,
                        const Completion &completion);
};

} // namespace korvane
