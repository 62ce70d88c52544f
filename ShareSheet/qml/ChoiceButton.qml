// One of a few choices, of which one holds.
import QtQuick
import QtQuick.Templates as T
import Korvane.Sheet

T.AbstractButton {
    id: control

    property bool isChosen: false

    width: parent ? Math.min(implicitWidth, parent.width) : implicitWidth
    implicitWidth: Math.max(Theme.touchHeight, label.implicitWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(Theme.touchHeight, label.implicitHeight + 8)
    leftPadding: Theme.spacing
    rightPadding: Theme.spacing
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.RadioButton
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: isChosen
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Text {
        id: label

        textFormat: Text.PlainText
        text: control.text
        color: control.isChosen ? Theme.accentText : Theme.text
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.Wrap
    }
    background: Item {
        Rectangle {
            anchors.fill: parent
            anchors.topMargin: 4
            anchors.bottomMargin: 4
            radius: Math.min(height, Theme.touchHeight - 8) / 2
            color: control.isChosen ? Theme.accent : control.down ? Theme.pressed : Theme.surface
            border.width: 1
            border.color: control.isChosen ? Theme.accent : Theme.separator
        }
        FocusRing {
            control: control
        }
    }
}
