// The share sheet for a video to Vimeo.
#pragma once

#include "Platform/Social/SLComposeServiceViewController.h"
#include "VimeoDetailsController.h"

namespace korvane {

class ACAccount;
class ACAccountStore;
class VimeoPost;
class VimeoUploadSession;

// Where the sheet's option row stands.
enum VimeoComposeItem : size_t { VimeoComposeItemDetails = 0 };

inline constexpr quint64 VimeoLongestTitle = 128; // bytes in UTF-8

// The sheet's text is the video's title. Size and privacy that are chosen under "Details" are remembered; the privacy
// only for the details themselves: a video that is posted without opening them is public.
class VimeoComposeViewController : public SLComposeServiceViewController, public VimeoComposeOptionViewDelegate {
public:
    static std::shared_ptr<VimeoComposeViewController> initWithNibName(const std::optional<QString> &nibName = {},
                                                                       const std::optional<QString> &bundle = {});

    const std::shared_ptr<ACAccountStore> &accountStore() const { return _accountStore; }
    void setAccountStore(std::shared_ptr<ACAccountStore> store) { _accountStore = std::move(store); }
    const std::shared_ptr<ACAccount> &vimeoAccount() const { return _vimeoAccount; } // null if there is none
    void setVimeoAccount(std::shared_ptr<ACAccount> account) { _vimeoAccount = std::move(account); }
    const std::optional<QString> &postDescription() const { return _postDescription; }
    void setPostDescription(const std::optional<QString> &description) { _postDescription = description; }
    const std::optional<QStringList> &tags() const { return _tags; }
    void setTags(const std::optional<QStringList> &tags) { _tags = tags; }
    qint64 videoSize() const { return _videoSize; } // VimeoVideoSize
    void setVideoSize(qint64 size) { _videoSize = size; }
    qint64 privacySettings() const { return _privacySettings; } // VimeoPrivacySetting
    void setPrivacySettings(qint64 settings) { _privacySettings = settings; }
    // The client of the last post; null before it.
    const std::shared_ptr<VimeoUploadSession> &session() const { return _session; }

    // As VimeoComposeItem.
    std::vector<std::shared_ptr<SLComposeSheetConfigurationItem>> configurationItems() override;
    // Presents the settings alert where there is no account with a credential.
    void viewDidAppear(bool animated) override;
    // A video needs a title.
    bool validateText(const QString &text) override;
    std::optional<qint64> bytesRemaining() const override;
    // For the sizes that the exports will have.
    bool configurationItemsNeedAttachments() const override { return true; }
    // A change that would make the title longer than VimeoLongestTitle is refused as a whole.
    bool textViewShouldChangeTextInRange(const std::shared_ptr<UITextView> &textView, NSRange range,
                                         const QString &replacement) override;
    void vimeoComposeOptionsViewDidFinish(const std::shared_ptr<VimeoDetailsController> &options) override;
    // Hands a post of the last attachment over, which blocks. A sheet without attachments stops the process.
    void didSelectPost() override;

protected:
    bool _initWithNibName(const std::optional<QString> &nibName, const std::optional<QString> &bundle) override;

private:
    void _pushDetails();
    QStringList _estimatedSizes() const;

    std::shared_ptr<VimeoUploadSession> _session;
    std::shared_ptr<SLComposeSheetConfigurationItem> _detailsConfigurationItem;
    std::shared_ptr<VimeoDetailsController> _detailsController;
    std::shared_ptr<ACAccountStore> _accountStore;
    std::shared_ptr<ACAccount> _vimeoAccount;
    std::optional<QString> _postDescription;
    std::optional<QStringList> _tags;
    qint64 _videoSize = 0;
    qint64 _privacySettings = 0;
};

} // namespace korvane
