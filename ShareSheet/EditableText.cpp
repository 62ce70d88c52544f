// Between a text field of the window and the text that it edits.
#include "ShareSheet/EditableText.h"

#include "ShareSheet/EditTarget.h"
#include "ShareSheet/TextChange.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QQuickWindow>

namespace korvane {
namespace {

EditTarget *editTarget(QObject *object) {
    return dynamic_cast<EditTarget *>(object);
}

} // namespace

void EditableText::setInput(QQuickItem *input) {
    if (_input == input) return;
    if (_input) _input->disconnect(this);
    _input = input;
    if (_input) {
        connect(_input, SIGNAL(textChanged()), this, SLOT(_inputTextChanged()));
        connect(_input, SIGNAL(preeditTextChanged()), this, SLOT(_inputCompositionChanged()));
        connect(_input, &QQuickItem::activeFocusChanged, this, &EditableText::_inputFocusChanged);
        _show(_text, 0);
    }
    Q_EMIT inputChanged();
}

void EditableText::setTarget(QObject *target) {
    if (_target == target) return;
    _target = target;
    Q_EMIT targetChanged();
}

void EditableText::setText(const QString &text) {
    if (_text == text) return;
    _text = text;
    if (_input && !_isOffering) _show(_text, _input->property("cursorPosition").toLongLong());
    Q_EMIT textChanged();
}

void EditableText::setIsEditing(bool isEditing) {
    if (_isEditing == isEditing) return;
    _isEditing = isEditing;
    if (_isEditing && _input && !_input->hasActiveFocus()) _input->forceActiveFocus(Qt::OtherFocusReason);
    Q_EMIT isEditingChanged();
}

void EditableText::_inputTextChanged() {
    const auto target = editTarget(_target);
    if (!target || !_input || _isShowing || _isOffering) return;
    const QString before = target->editedText(_row);
    const QString after = _input->property("text").toString();
    const auto change = TextChange::between(before, after, _input->property("cursorPosition").toLongLong());
    if (!change) return;
    _isOffering = true;
    const bool isTaken = target->userReplaces(_row, change->range, change->replacement);
    _isOffering = false;
    const qint64 cursorBefore = change->range.location + change->range.length;
    if (!isTaken) _takeBack(before, cursorBefore);
    _show(target->editedText(_row), cursorBefore);
}

// Unlike with another text the field can still undo what was done before. Its last step may have begun earlier than
// what was refused: the part of it that was taken comes in again.
void EditableText::_takeBack(const QString &text, qint64 cursor) {
    _isShowing = true;
    QMetaObject::invokeMethod(_input, "undo");
    if (const auto lost = TextChange::between(_input->property("text").toString(), text, cursor)) {
        const int start = int(lost->range.location);
        QMetaObject::invokeMethod(_input, "remove", Q_ARG(int, start), Q_ARG(int, start + int(lost->range.length)));
        QMetaObject::invokeMethod(_input, "insert", Q_ARG(int, start), Q_ARG(QString, lost->replacement));
    }
    _input->setProperty("cursorPosition", int(cursor));
    _isShowing = false;
}

void EditableText::_inputCompositionChanged() {
    const auto target = editTarget(_target);
    if (target && _input) target->userComposes(_row, _input->property("preeditText").toString());
}

void EditableText::_show(const QString &text, qint64 cursor) {
    _text = text;
    if (!_input || _input->property("text").toString() == text) return;
    _isShowing = true;
    _input->setProperty("text", text);
    _input->setProperty("cursorPosition", int(std::min<qint64>(cursor, text.size())));
    _isShowing = false;
}

// A little later: one field loses the keyboard before another gets it, and rows may go on either.
void EditableText::_inputFocusChanged() {
    QMetaObject::invokeMethod(this, &EditableText::_followFocus, Qt::QueuedConnection);
}

void EditableText::_followFocus() {
    const auto target = editTarget(_target);
    if (!target || !_input || !_input->window()) return;
    if (_input->hasActiveFocus())
        target->userBeginsEditing(_row);
    else if (_input->window()->isActive())
        target->userEndsEditing(_row); // while another window has the keyboard nothing ends
}

void EditableText::pressReturn() {
    commitComposition();
    if (const auto target = editTarget(_target)) target->userPressesReturn(_row);
}

void EditableText::commitComposition() {
    QGuiApplication::inputMethod()->commit();
    QObject *focused = QGuiApplication::focusObject();
    const QString left = focused ? focused->property("preeditText").toString() : QString();
    if (left.isEmpty()) return; // else an input method that leaves it to us
    QInputMethodEvent event;
    event.setCommitString(left);
    QCoreApplication::sendEvent(focused, &event);
}

} // namespace korvane
