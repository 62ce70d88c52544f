// A button with words; the page's main one stands out.
import QtQuick
import QtQuick.Templates as T
import Korvane.Sheet

T.Button {
    id: control

    property bool isMain: false
    property color ink: isMain ? Theme.accentText : Theme.accent

    width: parent ? Math.min(implicitWidth, parent.width) : implicitWidth // longer words take more lines
    implicitWidth: Math.max(Theme.touchHeight, label.implicitWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(Theme.touchHeight, label.implicitHeight + topPadding + bottomPadding)
    leftPadding: Theme.spacing
    rightPadding: leftPadding
    topPadding: 4
    bottomPadding: 4
    focusPolicy: Theme.tabFocus // a tap leaves the keyboard, and what is being composed, where it is
    opacity: enabled ? 1 : 0.45
    Accessible.role: Accessible.Button
    Accessible.name: text
    Keys.onReturnPressed: if (enabled) clicked()
    Keys.onEnterPressed: if (enabled) clicked()

    contentItem: Text {
        id: label

        textFormat: Text.PlainText
        text: control.text
        color: control.ink
        font.bold: control.isMain
        font.pixelSize: control.text.length === 1 ? Theme.lineHeight * 1.3 : Theme.fontPixelSize // a sign, or words
        horizontalAlignment: lineCount > 1 ? Text.AlignLeft : Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.Wrap
    }
    background: Rectangle {
        radius: Theme.radius
        color: control.isMain ? Theme.accent : control.down ? Theme.pressed : "transparent"
        opacity: control.isMain && control.down ? 0.8 : 1

        Rectangle {
            anchors.fill: parent
            anchors.margins: control.isMain ? 3 : 0
            radius: control.isMain ? Theme.radius - 3 : Theme.radius
            color: "transparent"
            border.width: Theme.focusWidth
            border.color: control.isMain ? Theme.accentText : Theme.focus
            visible: control.activeFocus
        }
    }
}
