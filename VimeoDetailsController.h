// Option screen: description, tags, size and privacy of a video.
#pragma once

#include "Platform/UIKit/UITableViewController.h"
#include "Platform/UIKit/UITextView.h"

#include <QStringList>

namespace korvane {

class VimeoDetailsController;

// The rows of sizes and privacy levels are VimeoVideoSize and VimeoPrivacySetting. The last row of the tags begins a
// new one.
enum VimeoDetailsSection : qint64 {
    VimeoDetailsSectionDescription = 0,
    VimeoDetailsSectionTags = 1,
    VimeoDetailsSectionVideoSize = 2,
    VimeoDetailsSectionPrivacy = 3,
};

class VimeoComposeOptionViewDelegate {
public:
    virtual ~VimeoComposeOptionViewDelegate() = default;
    // The screen is about to disappear; what was chosen is read from it.
    virtual void vimeoComposeOptionsViewDidFinish(const std::shared_ptr<VimeoDetailsController> &options) = 0;
};

// Size and privacy are remembered when they are chosen, in the preference domain "com.zorvex.vimeo-upload" under
// "VideoSize" and "PrivacySetting"; description and tags live as long as the screen.
class VimeoDetailsController : public UITableViewController, public UITextFieldDelegate {
public:
    // The remembered size, unchecked, else large.
    static qint64 defaultVideoSize();
    static std::shared_ptr<VimeoDetailsController> initWithStyle(UITableViewStyle style);

    std::shared_ptr<VimeoComposeOptionViewDelegate> delegate() const { return _delegate.lock(); }
    void setDelegate(std::weak_ptr<VimeoComposeOptionViewDelegate> delegate) { _delegate = std::move(delegate); }
    std::optional<QString> videoDescription() const; // null before the row has been shown
    QStringList tags() const { return _tags; }
    // Texts of the estimated file sizes: small, medium, large. Empty where they are not known.
    QStringList &videoSizes() { return _videoSizes; }
    qint64 videoSize() const { return _videoSize; }           // row
    qint64 privacySetting() const { return _privacySetting; } // row
    // The tag row that is to take the keyboard as soon as it has a cell.
    const std::optional<NSIndexPath> &indexPathForPendingFirstResponder() const {
        return _indexPathForPendingFirstResponder;
    }
    void setIndexPathForPendingFirstResponder(const std::optional<NSIndexPath> &indexPath) {
        _indexPathForPendingFirstResponder = indexPath;
    }
    const QStringList &videoSizeStrings() const { return _videoSizeStrings; }
    void setVideoSizeStrings(const QStringList &strings) { _videoSizeStrings = strings; }
    const QStringList &videoSizeFormatStrings() const { return _videoSizeFormatStrings; }
    void setVideoSizeFormatStrings(const QStringList &strings) { _videoSizeFormatStrings = strings; }
    const QStringList &privacyLevels() const { return _privacyLevels; }
    void setPrivacyLevels(const QStringList &levels) { _privacyLevels = levels; }

    void loadView() override;
    void viewWillDisappear(bool animated) override;
    CGSize preferredContentSize() override;

    qint64 numberOfSectionsInTableView(UITableView &tableView) override;
    qint64 tableViewNumberOfRowsInSection(UITableView &tableView, qint64 section) override;
    std::optional<QString> tableViewTitleForHeaderInSection(UITableView &tableView, qint64 section) override;
    double tableViewHeightForRowAtIndexPath(UITableView &tableView, NSIndexPath indexPath) override;
    std::shared_ptr<UITableViewCell> tableViewCellForRowAtIndexPath(UITableView &tableView,
                                                                    NSIndexPath indexPath) override;
    void tableViewDidSelectRowAtIndexPath(UITableView &tableView, NSIndexPath indexPath) override;

    // A tag follows what is typed into its row.
    bool textFieldShouldChangeCharactersInRange(const std::shared_ptr<UITextField> &textField, NSRange range,
                                                const QString &replacement) override;
    void textFieldDidEndEditing(const std::shared_ptr<UITextField> &textField) override;
    bool textFieldShouldReturn(const std::shared_ptr<UITextField> &textField) override;

protected:
    bool _initWithStyle(UITableViewStyle style) override;

private:
    std::shared_ptr<UITableViewCell> _cellOfDescription();
    std::shared_ptr<UITableViewCell> _cellOfTag(UITableView &tableView, NSIndexPath indexPath);
    std::shared_ptr<UITableViewCell> _cellOfVideoSize(qint64 row) const;
    std::shared_ptr<UITableViewCell> _cellOfPrivacyLevel(qint64 row) const;
    std::optional<NSIndexPath> _tagIndexPathForTextField(const std::shared_ptr<UITextField> &textField) const;

    std::shared_ptr<UITextView> _descriptionTextView;
    std::shared_ptr<UITableViewCell> _descriptionCell;
    QStringList _tags;
    std::weak_ptr<VimeoComposeOptionViewDelegate> _delegate;
    QStringList _videoSizes;
    qint64 _videoSize = 0;
    qint64 _privacySetting = 0;
    std::optional<NSIndexPath> _indexPathForPendingFirstResponder;
    QStringList _videoSizeStrings;
    QStringList _videoSizeFormatStrings;
    QStringList _privacyLevels;
};

} // namespace korvane
