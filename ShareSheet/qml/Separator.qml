// The line below a row.
import QtQuick
import Korvane.Sheet

Rectangle {
    anchors.bottom: parent.bottom
    x: LayoutMirroring.enabled ? 0 : Theme.margin
    width: parent.width - Theme.margin
    height: 1
    color: Theme.separator
}
