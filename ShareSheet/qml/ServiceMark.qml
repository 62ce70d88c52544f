// The sign of an upload: where it goes, or what became of it.
import QtQuick
import Korvane.Sheet

Rectangle {
    id: mark

    required property string service
    required property string uploadState

    readonly property var signs: ({
            "done": "✓",
            "failed": "!"
        })

    width: Theme.touchHeight
    height: width
    radius: Theme.radius
    color: uploadState === "failed" ? Theme.problemSurface : Theme.pressed
    Accessible.ignored: true

    Text {
        anchors.centerIn: parent
        text: mark.signs[mark.uploadState] ?? (mark.service === "Vimeo" ? "▶" : "▣")
        color: mark.uploadState === "failed" ? Theme.problem : mark.uploadState === "done" ? Theme.accent : Theme.secondaryText
        font.pixelSize: Theme.largeFontPixelSize
        font.bold: true
    }
}
