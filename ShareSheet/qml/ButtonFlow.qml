// Buttons beside each other, or below each other where there is no room; their words begin where other words do.
import QtQuick
import Korvane.Sheet

Flow {
    x: Theme.margin - Theme.spacing
    width: parent.width - 2 * x
}
