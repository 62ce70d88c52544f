// A word to the reader above the contents of a page, with what can be done about it.
import QtQuick
import Korvane.Sheet

Rectangle {
    id: notice

    property alias text: label.text
    property alias actionText: action.text
    property bool isProblem: true

    signal actionClicked

    implicitHeight: contents.height + 2 * Theme.spacing
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
        }
        ActionButton {
            id: action

            width: Math.min(implicitWidth, parent.width)
            visible: text.length > 0
            onClicked: notice.actionClicked()
        }
    }
}
