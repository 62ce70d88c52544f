// A question over the page; nothing else can be used before it is answered.
import QtQuick
import Korvane.Sheet

FocusScope {
    id: alert

    property alias title: heading.text
    property alias message: words.text
    property alias acceptText: accept.text
    property alias rejectText: reject.text

    signal accepted
    signal rejected

    onVisibleChanged: if (visible) accept.forceActiveFocus()
    Accessible.role: Accessible.AlertMessage
    Accessible.name: title
    Accessible.description: message

    Rectangle {
        anchors.fill: parent
        color: Theme.shade

        MouseArea {
            anchors.fill: parent
            hoverEnabled: true
        }
    }
    Rectangle {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.margin, Theme.lineHeight * 24)
        height: Math.min(parent.height - 2 * Theme.margin, contents.height + 2 * Theme.margin)
        radius: Theme.radius
        color: Theme.surface

        Flickable {
            anchors.fill: parent
            anchors.margins: Theme.margin
            contentHeight: contents.height
            clip: true
            boundsBehavior: Flickable.StopAtBounds

            Column {
                id: contents

                width: parent.width
                spacing: Theme.spacing

                Text {
                    id: heading

                    width: parent.width
                    color: Theme.text
                    font.bold: true
                    font.pixelSize: Theme.largeFontPixelSize
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignLeft
                }
                Text {
                    id: words

                    width: parent.width
                    color: Theme.text
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignLeft
                }
                Flow {
                    width: parent.width
                    spacing: Theme.spacing
                    layoutDirection: Qt.RightToLeft

                    ActionButton {
                        id: accept

                        isMain: true
                        focus: true
                        KeyNavigation.tab: reject
                        KeyNavigation.backtab: reject
                        onClicked: alert.accepted()
                    }
                    ActionButton {
                        id: reject

                        KeyNavigation.tab: accept
                        KeyNavigation.backtab: accept
                        onClicked: alert.rejected()
                    }
                }
            }
        }
    }
}
