// The sign of an upload: its picture where there is one, where it goes, and what became of it.
import QtQuick
import Korvane.Sheet

Rectangle {
    id: mark

    required property string service
    required property string uploadState
    required property string thumbnail

    readonly property var signs: ({
            "done": "✓",
            "failed": "!"
        })
    readonly property string sign: signs[uploadState] ?? ""

    width: Theme.touchHeight
    height: width
    radius: Theme.radius
    color: uploadState === "failed" ? Theme.problemSurface : Theme.pressed
    Accessible.ignored: true

    ThumbnailTile {
        id: tile

        anchors.fill: parent
        opacity: isShown ? 1 : 0
        edge: mark.width
        source: mark.thumbnail
    }
    Rectangle {
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        width: tile.isShown ? sign.height : mark.width
        height: width
        radius: Theme.radius
        color: mark.uploadState === "failed" ? Theme.problemSurface : Theme.pressed
        visible: !tile.isShown || mark.sign.length > 0

        Text {
            id: sign

            textFormat: Text.PlainText
            anchors.centerIn: parent
            text: mark.sign.length > 0 ? mark.sign : mark.service === "Vimeo" ? "▶" : "▣"
            color: mark.uploadState === "failed" ? Theme.problem : mark.uploadState === "done" ? Theme.accent : Theme.secondaryText
            font.pixelSize: Theme.largeFontPixelSize
            font.bold: true
        }
    }
}
