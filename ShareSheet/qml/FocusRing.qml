// The frame around what has the keyboard.
import QtQuick
import Korvane.Sheet

Rectangle {
    required property Item control

    anchors.fill: parent
    color: "transparent"
    radius: Theme.radius
    border.width: Theme.focusWidth
    border.color: Theme.focus
    visible: control.activeFocus
}
