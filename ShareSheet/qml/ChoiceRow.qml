// A row of which one among several is chosen.
import QtQuick
import QtQuick.Templates as T
import Korvane.Sheet

// A screen reader tells by the type, not by Accessible.role, what a control is.
T.RadioButton {
    id: row

    property bool isChecked: false
    property bool isSelectable: true

    checkable: false // the table says what is chosen
    implicitHeight: Math.max(Theme.touchHeight, label.implicitHeight + 2 * Theme.spacing)
    focusPolicy: isSelectable ? Qt.StrongFocus : Qt.NoFocus
    Accessible.name: text
    Accessible.checkable: isSelectable
    Accessible.checked: isChecked
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: if (isSelectable) clicked()
    Keys.onEnterPressed: if (isSelectable) clicked()

    background: Rectangle {
        color: row.down && row.isSelectable ? Theme.pressed : Theme.surface

        Rectangle {
            anchors.bottom: parent.bottom
            x: row.LayoutMirroring.enabled ? 0 : Theme.margin
            width: parent.width - Theme.margin
            height: 1
            color: Theme.separator
        }
        FocusRing {
            control: row
        }
    }
    contentItem: Item {
        Text {
            id: label

            textFormat: Text.PlainText
            anchors.left: parent.left
            anchors.leftMargin: Theme.margin
            anchors.right: mark.left
            anchors.rightMargin: Theme.spacing
            anchors.verticalCenter: parent.verticalCenter
            text: row.text
            color: Theme.text
            wrapMode: Text.Wrap
            maximumLineCount: 3
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
        }
        Text {
            id: mark

            textFormat: Text.PlainText
            anchors.right: parent.right
            anchors.rightMargin: Theme.margin
            anchors.verticalCenter: parent.verticalCenter
            text: row.isChecked ? "✓" : ""
            color: Theme.accent
            font.pixelSize: Theme.largeFontPixelSize
            font.bold: true
            Accessible.ignored: true
        }
    }
}
