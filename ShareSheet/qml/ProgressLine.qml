// How far something has come.
import QtQuick
import Korvane.Sheet

Item {
    id: line

    property real value: -1 // from 0 to 1; below 0 while it is not known

    implicitHeight: 10
    Accessible.role: Accessible.ProgressBar
    Accessible.name: value < 0 ? qsTr("Beginning") : qsTr("%1 percent").arg(Math.floor(100 * value))

    Rectangle {
        id: track

        anchors.verticalCenter: parent.verticalCenter
        width: parent.width
        height: 4
        radius: 2
        color: Theme.separator

        Rectangle {
            anchors.left: parent.left
            width: parent.width * Math.max(0, Math.min(1, line.value))
            height: parent.height
            radius: 2
            color: Theme.accent
        }
    }
}
