// Shows at the side where a long list is, while it moves.
import QtQuick
import Korvane.Sheet

Rectangle {
    required property Flickable view

    anchors.right: view.right
    anchors.rightMargin: 2
    y: view.y + view.visibleArea.yPosition * view.height
    width: 4
    height: Math.max(20, view.visibleArea.heightRatio * view.height)
    radius: 2
    color: Theme.secondaryText
    opacity: view.moving ? 0.8 : 0
    visible: view.visibleArea.heightRatio < 1
    Accessible.ignored: true

    Behavior on opacity {
        NumberAnimation {
            duration: Theme.slideDuration
        }
    }
}
