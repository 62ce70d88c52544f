// The bar on top of a page: a button on the leading side, the title, a button on the trailing side.
import QtQuick
import Korvane.Sheet

Item {
    id: header

    property alias title: label.text
    property alias leadingText: leading.text
    property alias trailingText: trailing.text
    property string leadingName: leadingText // for screen readers, where a sign stands in place of words
    property alias trailingEnabled: trailing.enabled
    readonly property alias leadingButton: leading
    readonly property alias trailingButton: trailing
    // Where the words of three do not fit beside each other, the title gets a line of its own.
    readonly property bool isNarrow: leading.implicitWidth + trailing.implicitWidth + label.implicitWidth + 2 * Theme.spacing + 4 > width

    signal leadingClicked
    signal trailingClicked

    implicitHeight: isNarrow ? Theme.touchHeight + label.height + Theme.spacing + 4 : Theme.touchHeight + 8

    Rectangle {
        anchors.fill: parent
        color: Theme.surface
    }
    ActionButton {
        id: leading

        anchors.left: parent.left
        anchors.leftMargin: 4
        y: 4
        height: Theme.touchHeight
        visible: text.length > 0
        Accessible.name: header.leadingName
        onClicked: header.leadingClicked()
    }
    Text {
        id: label

        readonly property real side: Math.max(leading.width, trailing.width) + Theme.spacing

        textFormat: Text.PlainText
        x: header.isNarrow ? Theme.margin
                           : Math.max(leading.visible && !header.LayoutMirroring.enabled ? leading.width + Theme.spacing : Theme.margin,
                                      Math.min((parent.width - implicitWidth) / 2, parent.width - side - implicitWidth))
        y: header.isNarrow ? Theme.touchHeight + 6 : (parent.height - height) / 2
        width: header.isNarrow ? parent.width - 2 * Theme.margin : implicitWidth
        color: Theme.text
        font.bold: true
        horizontalAlignment: Text.AlignHCenter
        wrapMode: header.isNarrow ? Text.Wrap : Text.NoWrap
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    ActionButton {
        id: trailing

        anchors.right: parent.right
        anchors.rightMargin: 4
        y: 4
        height: Theme.touchHeight
        isMain: true
        visible: text.length > 0
        onClicked: header.trailingClicked()
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Theme.separator
    }
}
