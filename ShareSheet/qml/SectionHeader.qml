// The words above a group of rows.
import QtQuick
import Korvane.Sheet

Text {
    textFormat: Text.PlainText
    leftPadding: Theme.margin
    rightPadding: Theme.margin
    topPadding: Theme.spacing * 1.5
    bottomPadding: Theme.spacing * 0.5
    color: Theme.secondaryText
    font.pixelSize: Theme.smallFontPixelSize
    font.bold: true
    wrapMode: Text.Wrap
    horizontalAlignment: Text.AlignLeft
    Accessible.role: Accessible.Heading
    Accessible.name: text
}
