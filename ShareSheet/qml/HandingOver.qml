// Lies over the sheet while it hands over.
import QtQuick
import Korvane.Sheet

Rectangle {
    id: shade

    required property SheetModel sheet

    color: Theme.shade
    visible: sheet.isHandingOver

    MouseArea {
        anchors.fill: parent
    }
    Rectangle {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.margin, words.implicitWidth + 4 * Theme.margin)
        height: words.height + 2 * Theme.margin
        radius: Theme.radius
        color: Theme.surface

        Text {
            id: words

            textFormat: Text.PlainText
            anchors.centerIn: parent
            width: Math.min(implicitWidth, shade.width - 4 * Theme.margin)
            text: qsTr("Handing over to the upload service…")
            color: Theme.text
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            Accessible.role: Accessible.AlertMessage
            Accessible.name: text
        }
    }
}
