// What is shared: one picture large, or many in a strip with their number.
import QtQuick
import Korvane.Sheet

Item {
    id: previews

    required property var attachments
    readonly property bool isOne: attachments.count === 1
    readonly property real edge: Math.max(88, Theme.lineHeight * 4)

    implicitHeight: attachments.count === 0 ? 0 : (isOne ? Math.max(edge * 1.8, 160) : edge + caption.height + Theme.spacing)

    ListView {
        id: strip

        anchors.left: parent.left
        anchors.right: parent.right
        height: previews.isOne ? parent.height : previews.edge
        orientation: ListView.Horizontal
        spacing: Theme.spacing
        leftMargin: Theme.margin
        rightMargin: Theme.margin
        cacheBuffer: previews.edge
        highlightMoveDuration: Theme.slideDuration
        activeFocusOnTab: !previews.isOne
        keyNavigationEnabled: true
        model: previews.attachments
        Accessible.role: Accessible.List
        Accessible.name: caption.text

        delegate: ThumbnailTile {
            id: tile

            required property int index
            required property string name
            required property string thumbnail
            required property string problem

            width: previews.isOne ? strip.width - 2 * Theme.margin : previews.edge
            height: strip.height
            edge: previews.isOne ? 240 : previews.edge
            source: thumbnail
            fillMode: previews.isOne ? Image.PreserveAspectFit : Image.PreserveAspectCrop
            isVideo: previews.attachments.isVideo
            isUnusable: problem.length > 0
            Accessible.role: Accessible.Graphic
            Accessible.name: previews.isOne ? name : qsTr("%1 of %2: %3").arg(index + 1).arg(strip.count).arg(name)
            Accessible.description: problem

            Loader {
                anchors.fill: parent
                active: strip.activeFocus && tile.ListView.isCurrentItem
                sourceComponent: FocusRing {
                    control: strip
                }
            }
        }
    }
    Text {
        id: caption

        textFormat: Text.PlainText
        anchors.top: strip.bottom
        anchors.topMargin: Theme.spacing
        x: Theme.margin
        width: parent.width - 2 * Theme.margin
        visible: !previews.isOne
        text: previews.attachments.isVideo ? qsTr("%n video(s)", "", previews.attachments.usableCount)
                                           : qsTr("%n photo(s)", "", previews.attachments.usableCount)
        color: Theme.secondaryText
        font.pixelSize: Theme.smallFontPixelSize
        horizontalAlignment: Text.AlignLeft
    }
}
