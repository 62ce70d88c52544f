// The window program: what it is asked to show, and the window that shows it.
#pragma once

#include "FrontEnd/ExitStatus.h"
#include "ShareSheet/Settings.h"
#include "ShareSheet/SheetModel.h"
#include "ShareSheet/SheetRequest.h"
#include "ShareSheet/Uploads.h"

#include <QQmlApplicationEngine>
#include <QTranslator>

namespace korvane {

// Thread: main.
class SheetApplication : public QObject {
    Q_OBJECT
public:
    SheetApplication();
    ~SheetApplication() override;

    // False where the window cannot be shown.
    bool open(const SheetRequest &request);

    QQuickWindow *window() const;
    // Null while no sheet is shown.
    SheetModel *sheet() const { return _sheet.get(); }

    // Null while their pages are not shown.
    Uploads *uploads() const { return _uploads.get(); }
    Settings *settings() const { return _settings.get(); }

    // Shows the settings that an address "prefs:root=SERVICE" stands for.
    void openPreferences(const NSURL &address);

Q_SIGNALS:
    // All is done: status is the program's. The window is hidden by then.
    void finished(int status);

private:
    bool _openSheet(const SheetRequest &request);
    bool _openUploads();
    bool _openSettings(bool isVimeoFirst);
    QVariantMap _settingsPage(bool isVimeoFirst);                             // its properties
    void _endWithWindow();                                                    // of a page that has no say in it
    bool _openWindow(SheetRequest::Page page, const QVariantMap &properties); // with these properties of the page

    ExitStatus _statusOf(SheetModel::Outcome outcome) const;
    void _end(SheetModel::Outcome outcome);

    QTranslator _texts;
    std::shared_ptr<SLComposeServiceViewController> _controller;
    std::unique_ptr<AttachmentsModel> _attachments;
    std::unique_ptr<SheetModel> _sheet;
    std::unique_ptr<Uploads> _uploads;
    std::unique_ptr<Settings> _settings;
    std::unique_ptr<QQmlApplicationEngine> _engine; // the first to go
};

} // namespace korvane
