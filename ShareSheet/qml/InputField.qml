// A line of text to type in.
import QtQuick
import QtQuick.Templates as T
import Korvane.Sheet

T.TextField {
    id: field

    property bool isFramed: true

    implicitWidth: 200
    implicitHeight: Math.max(Theme.touchHeight, contentHeight + topPadding + bottomPadding)
    leftPadding: Theme.spacing
    rightPadding: Theme.spacing
    topPadding: Theme.spacing * 0.5
    bottomPadding: Theme.spacing * 0.5
    font.family: Theme.fontFamily
    font.pointSize: Theme.fontPointSize
    color: Theme.text
    placeholderTextColor: Theme.secondaryText
    selectionColor: Theme.accent
    selectedTextColor: Theme.accentText
    selectByMouse: true
    horizontalAlignment: TextInput.AlignLeft
    verticalAlignment: TextInput.AlignVCenter
    Accessible.role: Accessible.EditableText
    Accessible.name: placeholderText

    background: Rectangle {
        color: Theme.surface
        radius: field.isFramed ? Theme.radius : 0
        border.width: field.activeFocus ? Theme.focusWidth : field.isFramed ? 1 : 0
        border.color: field.activeFocus ? Theme.focus : Theme.separator
    }

    Text {
        textFormat: Text.PlainText
        x: field.leftPadding
        width: field.width - field.leftPadding - field.rightPadding
        height: field.height
        text: field.placeholderText
        color: field.placeholderTextColor
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        visible: field.length === 0 && field.preeditText.length === 0
        Accessible.ignored: true
    }
}
