// Option screen: description, tags, size and privacy of a video.
#include "VimeoDetailsController.h"

#include "Korvane/VimeoPost.h"
#include "Platform/Foundation/KRAssert.h"
#include "Platform/Foundation/NSBundle.h"
#include "Platform/Preferences/CFPreferences.h"

#include <algorithm>

namespace korvane {
namespace {

constexpr qint64 numberOfSections = 4;
constexpr double descriptionHeight = 90; // points

const QString uploadDomain = QStringLiteral("com.zorvex.vimeo-upload");
const QString videoSizeKey = QStringLiteral("VideoSize");
const QString privacyKey = QStringLiteral("PrivacySetting");

QString localized(const QString &key) {
    return NSBundle::localizedString(key, QString(), QStringLiteral("Vimeo"));
}

QStringList localizedAll(QStringList keys) {
    std::ranges::transform(keys, keys.begin(), localized);
    return keys;
}

std::shared_ptr<UITableViewCell> choiceCell(const QString &identifier, const QString &text, bool isChosen) {
    const auto cell = UITableViewCell::initWithStyle(UITableViewCellStyleDefault, identifier);
    cell->textLabel()->setText(text);
    cell->setAccessoryType(isChosen ? UITableViewCellAccessoryCheckmark : UITableViewCellAccessoryNone);
    cell->makeTransparent();
    return cell;
}

void remember(const QString &key, qint64 row) {
    CFPreferencesSetAppValue(key, row, uploadDomain);
    CFPreferencesAppSynchronize(uploadDomain);
}

} // namespace

qint64 VimeoDetailsController::defaultVideoSize() {
    bool isValid = false;
    const qint64 size = CFPreferencesGetAppIntegerValue(videoSizeKey, uploadDomain, &isValid);
    return isValid ? size : qint64(VimeoVideoSizeLarge);
}

std::shared_ptr<VimeoDetailsController> VimeoDetailsController::initWithStyle(UITableViewStyle style) {
    const auto controller = std::make_shared<VimeoDetailsController>();
    return controller->_initWithStyle(style) ? controller : nullptr;
}

bool VimeoDetailsController::_initWithStyle(UITableViewStyle style) {
    if (!UITableViewController::_initWithStyle(style)) return false;
    _videoSizeStrings = localizedAll(
        {QStringLiteral("VIDEO_SIZE_SMALL"), QStringLiteral("VIDEO_SIZE_MEDIUM"), QStringLiteral("VIDEO_SIZE_LARGE")});
    _videoSizeFormatStrings =
        localizedAll({QStringLiteral("VIDEO_SIZE_SMALL_FORMAT"), QStringLiteral("VIDEO_SIZE_MEDIUM_FORMAT"),
                      QStringLiteral("VIDEO_SIZE_LARGE_FORMAT")});
    _privacyLevels = localizedAll({QStringLiteral("PRVACY_LEVEL_PUBLIC"), QStringLiteral("PRVACY_LEVEL_PRIVATE")});
    CFPreferencesAppSynchronize(uploadDomain);
    _privacySetting = CFPreferencesGetAppIntegerValue(privacyKey, uploadDomain);
    _videoSize = defaultVideoSize();
    return true;
}

std::optional<QString> VimeoDetailsController::videoDescription() const {
    return _descriptionTextView ? std::optional(_descriptionTextView->text()) : std::nullopt;
}

void VimeoDetailsController::loadView() {
    UITableViewController::loadView();
    view()->makeTransparent();
}

// The base class is not called, on purpose: all that leaving does is to hand over what was entered, also what is still
// being edited.
void VimeoDetailsController::viewWillDisappear(bool) {
    if (const auto delegate = _delegate.lock()) delegate->vimeoComposeOptionsViewDidFinish(sharedPointer(this));
}

CGSize VimeoDetailsController::preferredContentSize() {
    double height = 0;
    for (qint64 section = 0; tableView() && section < numberOfSections; ++section)
        height += tableView()->rectForSection(section).height();
    return {0, height};
}

qint64 VimeoDetailsController::numberOfSectionsInTableView(UITableView &) {
    return numberOfSections;
}

qint64 VimeoDetailsController::tableViewNumberOfRowsInSection(UITableView &, qint64 section) {
    switch (section) {
    case VimeoDetailsSectionDescription:
        return 1;
    case VimeoDetailsSectionTags:
        return _tags.size() + 1;
    case VimeoDetailsSectionVideoSize:
        return _videoSizeFormatStrings.size();
    case VimeoDetailsSectionPrivacy:
        return _privacyLevels.size();
    default:
        assertionFailed("0", "-[VimeoDetailsController tableView:numberOfRowsInSection:]", "VimeoDetailsController",
                        123);
    }
}

std::optional<QString> VimeoDetailsController::tableViewTitleForHeaderInSection(UITableView &, qint64 section) {
    switch (section) {
    case VimeoDetailsSectionDescription:
        return localized(QStringLiteral("ADD_DESCRIPTION"));
    case VimeoDetailsSectionTags:
        return localized(QStringLiteral("ADD_TAGS"));
    case VimeoDetailsSectionVideoSize:
        return localized(QStringLiteral("VIDEO_SIZE"));
    case VimeoDetailsSectionPrivacy:
        return localized(QStringLiteral("PRVACY_LEVEL"));
    default:
        assertionFailed("0", "-[VimeoDetailsController tableView:titleForHeaderInSection:]", "VimeoDetailsController",
                        141);
    }
}

double VimeoDetailsController::tableViewHeightForRowAtIndexPath(UITableView &tableView, NSIndexPath indexPath) {
    return indexPath.section == VimeoDetailsSectionDescription ? descriptionHeight : tableView.rowHeight();
}

std::shared_ptr<UITableViewCell> VimeoDetailsController::tableViewCellForRowAtIndexPath(UITableView &tableView,
                                                                                        NSIndexPath indexPath) {
    switch (indexPath.section) {
    case VimeoDetailsSectionDescription:
        return _cellOfDescription();
    case VimeoDetailsSectionTags:
        return _cellOfTag(tableView, indexPath);
    case VimeoDetailsSectionVideoSize:
        return _cellOfVideoSize(indexPath.row);
    case VimeoDetailsSectionPrivacy:
        return _cellOfPrivacyLevel(indexPath.row);
    default:
        assertionFailed("0", "-[VimeoDetailsController tableView:cellForRowAtIndexPath:]", "VimeoDetailsController",
                        163);
    }
}

std::shared_ptr<UITableViewCell> VimeoDetailsController::_cellOfDescription() {
    if (!_descriptionCell) {
        _descriptionCell =
            UITableViewCell::initWithStyle(UITableViewCellStyleDefault, QStringLiteral("descriptionCell"));
        _descriptionTextView = UITextView::initWithFrame(_descriptionCell->bounds());
        _descriptionTextView->setAutoresizingMask(UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight);
        _descriptionCell->addSubview(_descriptionTextView);
    }
    return _descriptionCell;
}

std::shared_ptr<UITableViewCell> VimeoDetailsController::_cellOfTag(UITableView &tableView, NSIndexPath indexPath) {
    const QString identifier = QStringLiteral("tagsCell");
    auto cell = tableView.dequeueReusableCellWithIdentifier(identifier);
    if (!cell) {
        cell = UITableViewCell::initWithStyle(UITableViewCellStyleEditable, identifier);
        cell->setSelectionStyle(UITableViewCellSelectionStyleNone);
        cell->setAccessoryType(UITableViewCellAccessoryNone);
        cell->setTextFieldOffset(0);
        cell->editableTextField()->setDelegate(sharedPointer(this));
        cell->editableTextField()->setTextColor(UIColor::Black);
        cell->makeTransparent();
    }
    if (indexPath.row < _tags.size()) cell->editableTextField()->setText(_tags[indexPath.row]);
    if (_indexPathForPendingFirstResponder == indexPath) {
        _indexPathForPendingFirstResponder.reset(); // first: the row that is left may go, and other cells be asked for
        cell->editableTextField()->becomeFirstResponder();
    }
    return cell;
}

std::shared_ptr<UITableViewCell> VimeoDetailsController::_cellOfVideoSize(qint64 row) const {
    const QString text = row < _videoSizes.size()
                             ? QString(_videoSizeFormatStrings[row]).replace(QStringLiteral("%@"), _videoSizes[row])
                             : _videoSizeStrings[row];
    return choiceCell(QStringLiteral("videoSizeCell"), text, row == _videoSize);
}

std::shared_ptr<UITableViewCell> VimeoDetailsController::_cellOfPrivacyLevel(qint64 row) const {
    return choiceCell(QStringLiteral("videoPrivacyCell"), _privacyLevels[row], row == _privacySetting);
}

// What is chosen here is the usual choice of every later share, whether or not this one is posted.
void VimeoDetailsController::tableViewDidSelectRowAtIndexPath(UITableView &tableView, NSIndexPath indexPath) {
    tableView.deselectRowAtIndexPath(indexPath, true);
    if (indexPath.section == VimeoDetailsSectionPrivacy) {
        _privacySetting = indexPath.row;
        remember(privacyKey, indexPath.row);
    } else if (indexPath.section == VimeoDetailsSectionVideoSize) {
        _videoSize = indexPath.row;
        remember(videoSizeKey, indexPath.row);
    }
    tableView.reloadData();
}

std::optional<NSIndexPath>
VimeoDetailsController::_tagIndexPathForTextField(const std::shared_ptr<UITextField> &textField) const {
    for (qint64 row = 0; row < tableView()->numberOfRowsInSection(VimeoDetailsSectionTags); ++row) {
        const NSIndexPath indexPath{row, VimeoDetailsSectionTags};
        const auto cell = tableView()->cellForRowAtIndexPath(indexPath);
        if (cell && cell->editableTextField() == textField) return indexPath;
    }
    return std::nullopt;
}

bool VimeoDetailsController::textFieldShouldChangeCharactersInRange(const std::shared_ptr<UITextField> &textField,
                                                                    NSRange range, const QString &replacement) {
    const auto indexPath = _tagIndexPathForTextField(textField);
    if (!indexPath) return true;
    const QString text = stringByReplacingCharactersInRange(textField->text(), range, replacement);
    if (indexPath->row == _tags.size()) {
        _tags.append(text);
        tableView()->insertRowsAtIndexPaths({{indexPath->row + 1, VimeoDetailsSectionTags}},
                                            UITableViewRowAnimationTop);
    } else {
        _tags[indexPath->row] = text;
    }
    return true;
}

void VimeoDetailsController::textFieldDidEndEditing(const std::shared_ptr<UITextField> &textField) {
    const auto indexPath = _tagIndexPathForTextField(textField);
    if (!indexPath || indexPath->row >= _tags.size() || !textField->text().isEmpty()) return;
    _tags.removeAt(indexPath->row);
    tableView()->deleteRowsAtIndexPaths({*indexPath}, UITableViewRowAnimationAutomatic);
}

bool VimeoDetailsController::textFieldShouldReturn(const std::shared_ptr<UITextField> &textField) {
    const auto indexPath = _tagIndexPathForTextField(textField);
    if (!indexPath) return true;
    const NSIndexPath next{indexPath->row + 1, indexPath->section};
    const auto visible = tableView()->indexPathsForVisibleRows();
    if (std::ranges::find(visible, next) == visible.end())
        tableView()->scrollToRowAtIndexPath(next, UITableViewScrollPositionBottom, true);
    if (const auto cell = tableView()->cellForRowAtIndexPath(next))
        return !cell->editableTextField()->becomeFirstResponder();
    _indexPathForPendingFirstResponder = next;
    return false;
}

} // namespace korvane
