// A row that something is switched on and off with.
import QtQuick
import QtQuick.Templates as T
import Korvane.Sheet

T.AbstractButton {
    id: row

    property bool isOn: false

    signal toggled

    implicitHeight: Math.max(Theme.touchHeight, words.implicitHeight + 2 * Theme.spacing)
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.CheckBox
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: isOn
    onClicked: toggled()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    background: Rectangle {
        color: row.down ? Theme.pressed : Theme.surface

        Separator {
        }
        FocusRing {
            control: row
        }
    }
    contentItem: Item {
        Text {
            id: words

            textFormat: Text.PlainText
            anchors.left: parent.left
            anchors.leftMargin: Theme.margin
            anchors.right: track.left
            anchors.rightMargin: Theme.spacing
            anchors.verticalCenter: parent.verticalCenter
            text: row.text
            color: Theme.text
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignLeft
        }
        Rectangle {
            id: track

            anchors.right: parent.right
            anchors.rightMargin: Theme.margin
            anchors.verticalCenter: parent.verticalCenter
            width: 44
            height: 26
            radius: 13
            color: row.isOn ? Theme.accent : Theme.separator

            Rectangle {
                readonly property bool isRight: row.isOn !== row.LayoutMirroring.enabled

                x: isRight ? parent.width - width - 3 : 3
                anchors.verticalCenter: parent.verticalCenter
                width: 20
                height: 20
                radius: 10
                color: row.isOn ? Theme.accentText : Theme.surface
            }
        }
    }
}
