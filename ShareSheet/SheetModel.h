// A share sheet, as the window shows it.
#pragma once

#include "Platform/Social/SLComposeServiceViewController.h"
#include "Platform/UIKit/UIKeyboard.h"
#include "ShareSheet/AttachmentsModel.h"
#include "ShareSheet/EditTarget.h"
#include "ShareSheet/TableModel.h"

#include <QPointer>
#include <QQuickWindow>
#include <QVariantList>

namespace korvane {

// Its text is row 0 of the EditTarget. Thread: main.
class SheetModel : public QObject, public EditTarget {
    Q_OBJECT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(bool isVideo READ isVideo CONSTANT)
    Q_PROPERTY(korvane::AttachmentsModel *attachments READ attachments CONSTANT)
    Q_PROPERTY(QString text READ text NOTIFY textChanged)
    Q_PROPERTY(int room READ room NOTIFY textChanged) // bytes in UTF-8 that the text may grow by; -1 without a limit
    Q_PROPERTY(bool isEditing READ isEditing NOTIFY isEditingChanged) // the text has the keyboard
    Q_PROPERTY(bool canPost READ canPost NOTIFY canPostChanged)
    Q_PROPERTY(bool isHandingOver READ isHandingOver NOTIFY isHandingOverChanged)
    Q_PROPERTY(QVariantList items READ items NOTIFY itemsChanged) // maps of "title" and "value"
    Q_PROPERTY(bool itemsAreEnabled READ itemsAreEnabled NOTIFY canPostChanged)
    Q_PROPERTY(korvane::TableModel *option READ option NOTIFY optionChanged) // the screen over the sheet, or null
    Q_PROPERTY(QString optionTitle READ optionTitle NOTIFY optionChanged)
    Q_PROPERTY(bool hasAlert READ hasAlert NOTIFY alertChanged)
    Q_PROPERTY(QString alertTitle READ alertTitle NOTIFY alertChanged)
    Q_PROPERTY(QString alertMessage READ alertMessage NOTIFY alertChanged)
    Q_PROPERTY(QString failure READ failure NOTIFY failureChanged) // why nothing was shared, and what to do
public:
    // longestText: bytes in UTF-8; 0 without a limit.
    SheetModel(std::shared_ptr<SLComposeServiceViewController> sheet, AttachmentsModel &attachments,
               qsizetype longestText);
    ~SheetModel() override;

    // Once the window has drawn: what is asked for may take a moment.
    void begin(QQuickWindow &window);
    // The person comes back from the settings.
    Q_INVOKABLE void appearAgain();

    QString title() const;
    bool isVideo() const { return _attachments.isVideo(); }
    AttachmentsModel *attachments() const { return &_attachments; }
    QString text() const { return _sheet->textView()->text(); }
    int room() const;
    bool isEditing() const { return _sheet->textView()->isFirstResponder(); }
    bool canPost() const;
    bool isHandingOver() const { return _isHandingOver; }
    QVariantList items() const;
    bool itemsAreEnabled() const;
    TableModel *option() const { return _isOptionShown ? _option.get() : nullptr; }
    QString optionTitle() const;
    bool hasAlert() const { return _sheet->settingsAlert().has_value(); }
    QString alertTitle() const { return hasAlert() ? _sheet->settingsAlert()->title : QString(); }
    QString alertMessage() const { return hasAlert() ? _sheet->settingsAlert()->message : QString(); }
    const QString &failure() const { return _failure; }

    Q_INVOKABLE void commitText(); // what is still being composed; before the keyboard goes elsewhere
    Q_INVOKABLE void tapItem(int item);
    Q_INVOKABLE void popOption();
    Q_INVOKABLE void post();
    Q_INVOKABLE void cancel();
    Q_INVOKABLE void openSettings(); // what the alert offers
    Q_INVOKABLE void dismissAlert();

    QString editedText(int row) const override;
    bool userReplaces(int row, NSRange range, const QString &replacement) override;
    void userBeginsEditing(int row) override;
    void userEndsEditing(int row) override;
    void userPressesReturn(int) override {}

Q_SIGNALS:
    void textChanged();
    void isEditingChanged();
    void canPostChanged();
    void isHandingOverChanged();
    void itemsChanged();
    void optionChanged();
    void alertChanged();
    void failureChanged();
    void settingsRequested(const korvane::NSURL &address);
    // The sheet is done with; status is the program's. From the event loop.
    void finished(int status);

private:
    class Observer;

    void _handOver();
    void _setFailure(const QString &failure);
    void _finish(int status);

    std::shared_ptr<SLComposeServiceViewController> _sheet;
    AttachmentsModel &_attachments;
    const qsizetype _longestText;
    std::shared_ptr<Observer> _observer;
    std::shared_ptr<UIKeyboard> _keyboard;
    QPointer<QQuickWindow> _window;
    std::unique_ptr<TableModel> _option; // kept while its page leaves the window
    bool _isOptionShown = false;
    bool _isHandingOver = false;
    bool _isFinished = false;
    bool _lacksAccount = false;
    int _status;
    QString _failure;
    QString _tappedTitle; // of the row that led to the option screen, which may have no title of its own
};

} // namespace korvane
