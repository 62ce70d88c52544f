// A word to the reader among the contents of a page, with what can be done about it.
import QtQuick
import Korvane.Sheet

Rectangle {
    id: notice

    property alias text: label.text
    property alias actionText: action.text
    property bool isProblem: true

    signal actionClicked

    x: Theme.margin
    width: parent.width - 2 * Theme.margin
    implicitHeight: contents.height + 2 * Theme.spacing
    visible: text.length > 0
    radius: Theme.radius
    color: isProblem ? Theme.problemSurface : Theme.surface
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    Column {
        id: contents

        x: Theme.margin
        y: Theme.spacing
        width: parent.width - 2 * Theme.margin
        spacing: Theme.spacing

        Text {
            id: label

            width: parent.width
            color: notice.isProblem ? Theme.problem : Theme.text
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignLeft
            textFormat: Text.PlainText
        }
        ActionButton {
            id: action

            anchors.left: parent.left
            anchors.leftMargin: -Theme.spacing // its words begin where the others do
            visible: text.length > 0
            onClicked: notice.actionClicked()
        }
    }
}
