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
#include <QtQmlIntegration>

namespace korvane {

// Its text is row 0 of the EditTarget. Thread: main.
class SheetModel : public QObject, public EditTarget {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("the program has it")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(bool isVideo READ isVideo CONSTANT)
    Q_PROPERTY(korvane::AttachmentsModel *attachments READ attachments CONSTANT)
    Q_PROPERTY(QString text READ text NOTIFY textChanged)
    Q_PROPERTY(bool isTextOptional READ isTextOptional CONSTANT)
    Q_PROPERTY(int room READ room NOTIFY textChanged) // bytes in UTF-8 that the text may grow by; -1 without a limit
    Q_PROPERTY(bool isRoomShort READ isRoomShort NOTIFY textChanged)
    Q_PROPERTY(bool wasTooLong READ wasTooLong NOTIFY textChanged)    // what the person entered last, and was not taken
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
    enum class Outcome { Shared, GivenUp, NothingUsable, LacksAccount };
    Q_ENUM(Outcome)

    SheetModel(std::shared_ptr<SLComposeServiceViewController> sheet, AttachmentsModel &attachments);
    ~SheetModel() override;

    // Once the window has drawn: what is asked for may take a moment.
    void begin(QQuickWindow &window);
    // The person comes back from the settings.
    Q_INVOKABLE void appearAgain();

    QString title() const;
    bool isVideo() const { return _attachments.isVideo(); }
    AttachmentsModel *attachments() const { return &_attachments; }
    QString text() const { return _sheet->textView()->text(); }
    bool isTextOptional() const { return _sheet->validateText({}); }
    int room() const { return int(_sheet->bytesRemaining().value_or(-1)); }
    bool isRoomShort() const;
    bool wasTooLong() const { return _wasRefused && room() >= 0; }
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
    const std::optional<NSError> &refusal() const { return _refusal; } // of the last hand-over; null if unknown

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
    void userComposes(int row, const QString &composition) override;

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
    // The sheet is about to appear again or to hand over: the account in use may be another than when it was made.
    void accountWanted();
    // The sheet is done with. From the event loop.
    void finished(korvane::SheetModel::Outcome outcome);

private:
    class Observer;

    bool _canHandOver(const QString &text) const;
    void _handOver();
    void _tellRefusal();
    void _setFailure(const QString &failure);
    void _endHandOver();
    void _finish(Outcome outcome);

    std::shared_ptr<SLComposeServiceViewController> _sheet;
    AttachmentsModel &_attachments;
    std::shared_ptr<Observer> _observer;
    std::shared_ptr<UIKeyboard> _keyboard;
    QPointer<QQuickWindow> _window;
    std::unique_ptr<TableModel> _option; // kept while its page leaves the window
    bool _isOptionShown = false;
    bool _isHandingOver = false;
    bool _isFinished = false;
    bool _lacksAccount = false;
    bool _wasRefused = false; // the last change of the text
    QString _composition;     // on its way into the text
    std::optional<NSError> _refusal;
    QString _failure;
    QString _tappedTitle; // of the row that led to the option screen, which may have no title of its own
};

} // namespace korvane
