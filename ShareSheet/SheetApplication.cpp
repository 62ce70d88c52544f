// The window program.
#include "ShareSheet/SheetApplication.h"

#include "FrontEnd/FileLimit.h"
#include "FrontEnd/FlickrSheet.h"
#include "FrontEnd/SystemLog.h"
#include "Korvane/VimeoComposeViewController.h"
#include "Platform/Accounts/ACAccountStore.h"
#include "ShareSheet/FrameWait.h"
#include "ShareSheet/ThumbnailMaker.h"
#include "ShareSheet/ThumbnailProvider.h"

#include <QDeadlineTimer>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QLocale>
#include <QQmlComponent>
#include <QTimer>

extern void qml_register_types_Korvane_Sheet(); // made by the build of the types with QML_ELEMENT

namespace korvane {
namespace {

constexpr int lookInterval = 50;  // milliseconds
constexpr int longestWait = 3000; // milliseconds, for answers that nobody will read

QUrl fileOf(const QString &page) {
    return QUrl(QStringLiteral("qrc:/qt/qml/Korvane/Sheet/qml/%1.qml").arg(page));
}

QString nameOf(SheetRequest::Page page) {
    switch (page) {
    case SheetRequest::Uploads:
        return QStringLiteral("UploadsPage");
    case SheetRequest::Settings:
        return QStringLiteral("SettingsPage");
    default:
        return QStringLiteral("SheetPage");
    }
}

} // namespace

SheetApplication::SheetApplication() : _engine(std::make_unique<QQmlApplicationEngine>()) {
    for (const QLocale &locale : {QLocale(), QLocale(QLocale::English)})
        if (_texts.load(locale, QStringLiteral("Sheet"), QStringLiteral("_"), QStringLiteral(":/korvane/strings")))
            break;
    QCoreApplication::installTranslator(&_texts);
    qml_register_types_Korvane_Sheet();
    _engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
    _engine->addImageProvider(ThumbnailProvider::name(), new ThumbnailProvider(&ThumbnailMaker::make));
}

SheetApplication::~SheetApplication() {
    _engine.reset();
}

bool SheetApplication::open(const SheetRequest &request) {
    // A thread of the engine's gets the page's types ready while this one looks for fonts and makes the models.
    const QQmlComponent window(_engine.get(), fileOf(QStringLiteral("Main")), QQmlComponent::Asynchronous);
    const QQmlComponent page(_engine.get(), fileOf(nameOf(request.page)), QQmlComponent::Asynchronous);
    QFontMetricsF(QGuiApplication::font()).height();
    switch (request.page) {
    case SheetRequest::Flickr:
    case SheetRequest::Vimeo:
        return _openSheet(request);
    case SheetRequest::Uploads:
        return _openUploads();
    case SheetRequest::Settings:
        return _openSettings(request.settingsOf == SheetRequest::Vimeo);
    case SheetRequest::Help:
    case SheetRequest::Version:
        break;
    }
    return false;
}

bool SheetApplication::_openSheet(const SheetRequest &request) {
    sendLogToSystemLog();
    raiseFileLimit();
    const bool isVideo = request.page == SheetRequest::Vimeo;
    _attachments = std::make_unique<AttachmentsModel>(
        isVideo ? AttachmentsModel::Kind::Video : AttachmentsModel::Kind::Photos, request.files);
    std::function<void()> findAccount;
    if (isVideo) {
        const auto vimeo = VimeoComposeViewController::initWithNibName();
        findAccount = [vimeo] {
            vimeo->setVimeoAccount(vimeo->accountStore()->accountInUse(ACAccountTypeIdentifierVimeo));
        };
        _controller = vimeo;
    } else {
        const auto flickr = makeFlickrSheet();
        findAccount = [flickr] {
            flickr->changeFlickrAccount(flickr->accountStore()->accountInUse(ACAccountTypeIdentifierFlickr));
        };
        _controller = flickr;
    }
    _sheet = std::make_unique<SheetModel>(_controller, *_attachments);
    connect(_sheet.get(), &SheetModel::accountWanted, this, findAccount); // the sheet itself looks for it only once
    connect(_sheet.get(), &SheetModel::finished, this, &SheetApplication::_end);
    connect(_sheet.get(), &SheetModel::settingsRequested, this, &SheetApplication::openPreferences);
    if (!_openWindow(request.page, {{QStringLiteral("sheet"), QVariant::fromValue(_sheet.get())}})) return false;
    afterNextFrame(*window(), [this] { _sheet->begin(*window()); });
    return true;
}

bool SheetApplication::_openUploads() {
    _uploads = std::make_unique<Uploads>();
    if (!_openWindow(SheetRequest::Uploads, {{QStringLiteral("uploads"), QVariant::fromValue(_uploads.get())}}))
        return false;
    _endWithWindow();
    return true;
}

bool SheetApplication::_openSettings(bool isVimeoFirst) {
    if (!_openWindow(SheetRequest::Settings, _settingsPage(isVimeoFirst))) return false;
    _endWithWindow();
    return true;
}

QVariantMap SheetApplication::_settingsPage(bool isVimeoFirst) {
    if (!_settings) _settings = std::make_unique<Settings>();
    return {{QStringLiteral("settings"), QVariant::fromValue(_settings.get())},
            {QStringLiteral("isVimeoFirst"), isVimeoFirst}};
}

void SheetApplication::_endWithWindow() {
    connect(window(), &QWindow::visibleChanged, this, [this](bool isVisible) {
        if (!isVisible) Q_EMIT finished(0);
    });
}

bool SheetApplication::_openWindow(SheetRequest::Page page, const QVariantMap &properties) {
    _engine->setInitialProperties({{QStringLiteral("firstPage"), fileOf(nameOf(page))},
                                   {QStringLiteral("firstPageProperties"), properties},
                                   {QStringLiteral("isMirrored"), QGuiApplication::isRightToLeft()}});
    _engine->load(fileOf(QStringLiteral("Main")));
    return window() != nullptr;
}

QQuickWindow *SheetApplication::window() const {
    return qobject_cast<QQuickWindow *>(_engine->rootObjects().value(0));
}

void SheetApplication::openPreferences(const NSURL &address) {
    QString problem;
    const auto request = SheetRequest::parse({address.absoluteString().toUtf8()}, problem);
    if (!request || request->page != SheetRequest::Settings) return;
    const QVariantMap properties = _settingsPage(request->settingsOf == SheetRequest::Vimeo);
    QMetaObject::invokeMethod(window(), "openPage", Q_ARG(QVariant, fileOf(nameOf(SheetRequest::Settings))),
                              Q_ARG(QVariant, properties));
}

ExitStatus SheetApplication::_statusOf(SheetModel::Outcome outcome) const {
    switch (outcome) {
    case SheetModel::Outcome::Shared:
        return ExitDone;
    case SheetModel::Outcome::NothingUsable:
        return ExitUsage;
    case SheetModel::Outcome::LacksAccount:
        return ExitNoAccount;
    case SheetModel::Outcome::GivenUp:
        break;
    }
    return _sheet->refusal() ? exitStatusOf(*_sheet->refusal()) : ExitUploadFailed;
}

// The sheet is kept for a while for whoever waits for its answers; the window has gone by then.
void SheetApplication::_end(SheetModel::Outcome outcome) {
    if (window()) window()->hide();
    const auto timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this,
            [this, timer, status = _statusOf(outcome), end = QDeadlineTimer(longestWait)] {
                if (_controller->isWaitingForAnswers() && !end.hasExpired()) return;
                timer->stop();
                Q_EMIT finished(status);
            });
    timer->start(_controller->isWaitingForAnswers() ? lookInterval : 0);
}

} // namespace korvane
