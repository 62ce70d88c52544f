// A word below what it explains.
import QtQuick
import Korvane.Sheet

Text {
    textFormat: Text.PlainText
    leftPadding: Theme.margin
    rightPadding: Theme.margin
    topPadding: Theme.spacing * 0.5
    bottomPadding: Theme.spacing
    color: Theme.secondaryText
    linkColor: Theme.accent
    font.pixelSize: Theme.smallFontPixelSize
    wrapMode: Text.Wrap
    horizontalAlignment: Text.AlignLeft
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
