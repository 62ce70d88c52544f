// A share sheet, as the window shows it.
#include "ShareSheet/SheetModel.h"

#include "FrontEnd/UploadText.h"
#include "Platform/Social/RemoteServiceError.h"
#include "Platform/UIKit/UITableViewController.h"
#include "ShareSheet/EditableText.h"
#include "ShareSheet/FrameWait.h"

#include <QTimer>

namespace korvane {

namespace {

constexpr int fewBytes = 30;
constexpr int afterHandOver = 100; // milliseconds

} // namespace

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
        const auto left = std::exchange(_model._option, std::make_unique<TableModel>(table));
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

SheetModel::SheetModel(std::shared_ptr<SLComposeServiceViewController> sheet, AttachmentsModel &attachments)
    : _sheet(std::move(sheet)), _attachments(attachments), _observer(std::make_shared<Observer>(*this)),
      _keyboard(std::make_shared<UIKeyboard>(&EditableText::commitComposition)) {
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
    Q_EMIT accountWanted();
    _sheet->appear();
}

QString SheetModel::title() const {
    return _sheet->title().value_or(QString());
}

bool SheetModel::isRoomShort() const {
    return room() >= 0 && (room() < fewBytes || _wasRefused);
}

// Where the text is a composition and nothing else, that will be the text once Post is pressed.
bool SheetModel::canPost() const {
    return _canHandOver(_composition.isEmpty() ? text() : text() + _composition);
}

bool SheetModel::_canHandOver(const QString &text) const {
    return !_isHandingOver && !_isFinished && _attachments.isReady() && _sheet->validateText(text);
}

bool SheetModel::itemsAreEnabled() const {
    return !_sheet->configurationItemsNeedAttachments() || _attachments.isReady();
}

QVariantList SheetModel::items() const {
    QVariantList list;
    for (const auto &item : _sheet->shownConfigurationItems())
        list.append(QVariantMap{{QStringLiteral("title"), item->title().value_or(QString())},
                                {QStringLiteral("value"), UploadText::printable(item->value().value_or(QString()))}});
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
    if (!_canHandOver(text()) || !_window) return;
    const QVariantList chosen = items();
    Q_EMIT accountWanted();
    if (items() != chosen)
        return _setFailure(tr("Another account is in use now. Look at what is chosen here, then press Post again."));
    _setFailure({});
    _isHandingOver = true;
    Q_EMIT isHandingOverChanged();
    Q_EMIT canPostChanged();
    afterNextFrame(*_window, [self = QPointer(this)] {
        if (self) self->_handOver();
    });
}

void SheetModel::_handOver() {
    const auto &request = *_sheet->extensionContext();
    _sheet->userTapsPost();
    if (request.state() == NSExtensionContext::State::Open) { // it lacks something; or did, and sees now that it has it
        appearAgain();
        if (hasAlert()) return _endHandOver();
        _sheet->userTapsPost();
    }
    if (request.state() == NSExtensionContext::State::Completed) return _finish(Outcome::Shared);
    _refusal = request.error();
    _sheet->extensionContext()->reopen();
    QTimer::singleShot(afterHandOver, this, &SheetModel::_tellRefusal);
}

// What was pressed while nothing could be drawn was not meant for what is said now: by this time it has been read, and
// has met a sheet that hands over.
void SheetModel::_tellRefusal() {
    _endHandOver();
    const QString reason = _refusal ? _refusal->localizedDescription() : tr("No reason was given.");
    const bool mayBeShared =
        _refusal && _refusal->domain() == RemoteServiceErrorDomain && _refusal->code() == RemoteServiceErrorUnknownEnd;
    _setFailure(
        mayBeShared
            ? reason
            : tr("Nothing was shared. %1\nWhat you entered is still here: press Post to try again.").arg(reason));
    if (_refusal && _refusal->domain() == SLAttachmentErrorDomain) _attachments.lookAgain();
}

void SheetModel::_endHandOver() {
    _isHandingOver = false;
    Q_EMIT isHandingOverChanged();
    Q_EMIT canPostChanged();
}

void SheetModel::cancel() {
    if (_isHandingOver || _isFinished) return;
    _sheet->didSelectCancel();
    const bool isUseless = _attachments.count() > 0 && !_attachments.isPreparing() && _attachments.usableCount() == 0;
    _finish(_lacksAccount ? Outcome::LacksAccount : isUseless ? Outcome::NothingUsable : Outcome::GivenUp);
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

void SheetModel::_finish(Outcome outcome) {
    if (std::exchange(_isFinished, true)) return;
    Q_EMIT canPostChanged();
    QMetaObject::invokeMethod(
        this, [this, outcome] { Q_EMIT finished(outcome); }, Qt::QueuedConnection);
}

QString SheetModel::editedText(int) const {
    return text();
}

bool SheetModel::userReplaces(int, NSRange range, const QString &replacement) {
    const bool isTaken = _sheet->textView()->userReplacesText(range, replacement);
    if (std::exchange(_wasRefused, !isTaken) == isTaken) Q_EMIT textChanged();
    return isTaken;
}

void SheetModel::userComposes(int, const QString &composition) {
    if (std::exchange(_composition, composition) != composition) Q_EMIT canPostChanged();
}

void SheetModel::userBeginsEditing(int) {
    _sheet->textView()->becomeFirstResponder();
}

void SheetModel::userEndsEditing(int) {
    _sheet->textView()->resignFirstResponder();
}

} // namespace korvane
