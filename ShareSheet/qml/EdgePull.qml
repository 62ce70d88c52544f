// The edge at which a finger pulls a page aside, to what lies below it.
import QtQuick
import Korvane.Sheet

Item {
    id: edge

    property bool isMirrored: false
    property real pulled: 0 // how far, in widths of the page

    signal pulledAway

    x: isMirrored ? parent.width - width : 0
    width: 22

    Behavior on pulled {
        enabled: !pull.active

        NumberAnimation {
            duration: Theme.slideDuration
        }
    }
    DragHandler {
        id: pull

        readonly property real way: Math.max(0, activeTranslation.x * (edge.isMirrored ? -1 : 1)) / edge.parent.width

        target: null
        yAxis.enabled: false
        grabPermissions: PointerHandler.CanTakeOverFromAnything
        onWayChanged: if (active) edge.pulled = Math.min(1, way)
        onActiveChanged: if (!active) {
            if (edge.pulled > 0.3)
                edge.pulledAway();
            else
                edge.pulled = 0;
        }
    }
}
