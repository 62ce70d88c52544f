// The window; each page fills it.
import QtQuick
import QtQuick.Controls

ApplicationWindow {
    id: window

    property alias pages: stack

    width: 420
    height: 720
    minimumWidth: 320
    minimumHeight: 480
    visible: true
    title: qsTr("Korvane")

    StackView {
        id: stack

        anchors.fill: parent
    }
}
