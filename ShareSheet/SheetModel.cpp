// A share sheet, as the window shows it.
#include "ShareSheet/SheetModel.h"

#include "FrontEnd/ExitStatus.h"
#include "Platform/UIKit/UITableViewController.h"
#include "ShareSheet/EditableText.h"
#include "ShareSheet/FrameWait.h"

#include <QCoreApplication>

namespace korvane {

class SheetModel::Observer : public SLComposeServiceViewControllerObserver, public UIViewObserver {
public:
    explicit Observer(SheetModel &model) : _model(model) {}

    void composeTextDidChange() override {
        Q_EMIT _model.textChanged();
        Q_EMIT _model.canPostChanged();
    }
    void composeItemsDidChange() override { Q_EMIT _model.itemsChanged(); }
    void composeDidPush(const std::shared_ptr<UIViewController> &screen) override {
        const auto table = std::dynamic_pointer_cast<UITableViewController>(screen);
        if (!table) return;
        const auto left = std::exchange(_model._option, std::make_unique<TableModel>(table->tableView()));
        _model._isOptionShown = true;
        Q_EMIT _model.optionChanged();
    }
    void composeDidPop(const std::shared_ptr<UIViewController> &) override {
        _model._isOptionShown = false;
        Q_EMIT _model.optionChanged();
    }
    void composeDidPresentSettingsAlert(const SLSettingsAlert &) override {
        _model._lacksAccount = true;
        Q_EMIT _model.alertChanged();
    }
    void composeDidDismissSettingsAlert() override { Q_EMIT _model.alertChanged(); }
    void viewDidChange(UIView &) override { Q_EMIT _model.isEditingChanged(); }

private:
    SheetModel &_model;
};

SheetModel::SheetModel(std::shared_ptr<SLComposeServiceViewController> sheet, AttachmentsModel &attachments,
                       qsizetype longestText)
    : _sheet(std::move(sheet)), _attachments(attachments), _longestText(longestText),
      _observer(std::make_shared<Observer>(*this)),
      _keyboard(std::make_shared<UIKeyboard>(&EditableText::commitComposition)), _status(ExitUploadFailed) {
    _sheet->addObserver(_observer);
    _sheet->textView()->addObserver(_observer);
    UIKeyboard::setActiveKeyboard(_keyboard);
    connect(&_attachments, &AttachmentsModel::changed, this, [this] {
        if (_attachments.isReady()) _sheet->setAttachments(_attachments.attachments());
        Q_EMIT canPostChanged();
    });
    _sheet->view();
    _sheet->viewWillAppear(false);
}

SheetModel::~SheetModel() = default;

void SheetModel::begin(QQuickWindow &window) {
    _window = &window;
    _attachments.start();
    _sheet->viewDidAppear(false);
}

void SheetModel::appearAgain() {
    _lacksAccount = false;
    _sheet->appear();
}

QString SheetModel::title() const {
    return _sheet->title().value_or(QString());
}

int SheetModel::room() const {
    return _longestText > 0 ? int(_longestText - text().toUtf8().size()) : -1;
}

bool SheetModel::canPost() const {
    return !_isHandingOver && !_isFinished && _attachments.isReady() && _sheet->validateText(text());
}

// What the details of a video offer depends on the video.
bool SheetModel::itemsAreEnabled() const {
    return !isVideo() || _attachments.isReady();
}

QVariantList SheetModel::items() const {
    QVariantList list;
    for (const auto &item : _sheet->shownConfigurationItems())
        list.append(QVariantMap{{QStringLiteral("title"), item->title().value_or(QString())},
                                {QStringLiteral("value"), item->value().value_or(QString())}});
    return list;
}

QString SheetModel::optionTitle() const {
    const auto &screen = _sheet->configurationViewController();
    return screen ? screen->title().value_or(_tappedTitle) : QString();
}

void SheetModel::commitText() {
    EditableText::commitComposition();
}

void SheetModel::tapItem(int item) {
    const auto items = _sheet->shownConfigurationItems();
    if (_isHandingOver || item < 0 || item >= int(items.size())) return;
    commitText();
    _tappedTitle = items[size_t(item)]->title().value_or(QString());
    if (const auto tap = items[size_t(item)]->tapHandler()) tap();
}

void SheetModel::popOption() {
    commitText();
    _sheet->popConfigurationViewController();
}

// The window shows first that it hands over: the hand-over itself lets nothing be drawn.
void SheetModel::post() {
    popOption();
    if (!canPost() || !_window) return;
    if (_lacksAccount) appearAgain();
    if (_lacksAccount) return;
    _setFailure({});
    _isHandingOver = true;
    Q_EMIT isHandingOverChanged();
    Q_EMIT canPostChanged();
    afterNextFrame(*_window, [self = QPointer(this)] {
        if (self) self->_handOver();
    });
}

void SheetModel::_handOver() {
    _sheet->userTapsPost();
    const auto &request = *_sheet->extensionContext();
    if (request.state() == NSExtensionContext::State::Completed) return _finish(ExitDone);
    const QString reason = request.error() ? request.error()->localizedDescription()
                                           : QCoreApplication::translate("SheetModel", "No reason was given.");
    _status = request.error() ? exitStatusOf(*request.error()) : ExitUploadFailed;
    _sheet->extensionContext()->reopen();
    _isHandingOver = false;
    Q_EMIT isHandingOverChanged();
    Q_EMIT canPostChanged();
    _setFailure(QCoreApplication::translate(
                    "SheetModel", "Nothing was shared. %1\nWhat you entered is still here: press Post to try again.")
                    .arg(reason));
}

void SheetModel::cancel() {
    if (_isHandingOver || _isFinished) return;
    _sheet->didSelectCancel();
    if (_attachments.count() > 0 && !_attachments.isPreparing() && _attachments.usableCount() == 0) _status = ExitUsage;
    _finish(_lacksAccount ? ExitNoAccount : _status);
}

void SheetModel::openSettings() {
    if (!hasAlert()) return;
    const NSURL address = _sheet->settingsAlert()->targetURL;
    _sheet->dismissSettingsAlert();
    Q_EMIT settingsRequested(address);
}

void SheetModel::dismissAlert() {
    _sheet->dismissSettingsAlert();
}

void SheetModel::_setFailure(const QString &failure) {
    if (_failure == failure) return;
    _failure = failure;
    Q_EMIT failureChanged();
}

void SheetModel::_finish(int status) {
    if (std::exchange(_isFinished, true)) return;
    Q_EMIT canPostChanged();
    QMetaObject::invokeMethod(
        this, [this, status] { Q_EMIT finished(status); }, Qt::QueuedConnection);
}

QString SheetModel::editedText(int) const {
    return text();
}

bool SheetModel::userReplaces(int, NSRange range, const QString &replacement) {
    return _sheet->textView()->userReplacesText(range, replacement);
}

void SheetModel::userBeginsEditing(int) {
    _sheet->textView()->becomeFirstResponder();
}

void SheetModel::userEndsEditing(int) {
    _sheet->textView()->resignFirstResponder();
}

} // namespace korvane
