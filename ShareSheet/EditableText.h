// Between a text field of the window and the text that it edits.
#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QtQmlIntegration>

namespace korvane {

// The field tells of a text after it has changed, the edited text wants to be asked before: the change is worked out,
// offered to the target, and undone in the field where it was refused or came out differently. The keyboard follows in
// both directions.
class EditableText : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem *input READ input WRITE setInput NOTIFY inputChanged)  // a TextField or a plain-text TextArea
    Q_PROPERTY(QObject *target READ target WRITE setTarget NOTIFY targetChanged) // an EditTarget
    Q_PROPERTY(int row MEMBER _row NOTIFY rowChanged)
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)                  // the target's, bound to it
    Q_PROPERTY(bool isEditing READ isEditing WRITE setIsEditing NOTIFY isEditingChanged) // the target's, bound to it
public:
    using QObject::QObject;

    QQuickItem *input() const { return _input; }
    void setInput(QQuickItem *input);
    QObject *target() const { return _target; }
    void setTarget(QObject *target);
    const QString &text() const { return _text; }
    void setText(const QString &text);
    bool isEditing() const { return _isEditing; }
    void setIsEditing(bool isEditing);

    Q_INVOKABLE void pressReturn();

    // Puts what is being composed in any field into its text, as far as the composition has come. Before what is typed
    // is read, and before a field goes.
    static void commitComposition();

Q_SIGNALS:
    void inputChanged();
    void targetChanged();
    void rowChanged();
    void textChanged();
    void isEditingChanged();

private Q_SLOTS:
    void _inputTextChanged();
    void _inputFocusChanged();
    void _inputCompositionChanged();

private:
    void _followFocus();
    void _show(const QString &text, qint64 cursor);
    void _takeBack(const QString &text, qint64 cursor);

    QPointer<QQuickItem> _input;
    QPointer<QObject> _target;
    int _row = 0;
    QString _text;
    bool _isEditing = false;
    bool _isOffering = false; // a change to the target
    bool _isShowing = false;  // a text in the field
};

} // namespace korvane
