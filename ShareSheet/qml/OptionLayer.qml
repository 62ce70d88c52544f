// The option screen over the sheet. It slides in from the side, and out again with its button or a swipe.
import QtQuick
import Korvane.Sheet

FocusScope {
    id: layer

    required property SheetModel sheet
    property bool isMade: false            // only then it slides
    readonly property bool isShown: isMade && sheet.option !== null
    readonly property bool isMirrored: LayoutMirroring.enabled
    property real away: isShown ? 0 : 1    // how far it has left, in its own widths
    property var table: null               // kept while it leaves
    property string heading

    function follow() {
        if (!sheet.option)
            return;
        table = sheet.option;
        heading = sheet.optionTitle;
        list.currentIndex = 0;
        list.positionViewAtBeginning();
        forceActiveFocus();
        list.tellRowsSoon();
    }

    visible: away < 1
    enabled: isShown
    onAwayChanged: if (away === 1) edge.pulled = 0
    Component.onCompleted: {
        isMade = true;
        follow();
    }
    Accessible.role: Accessible.Pane
    Accessible.name: heading

    Behavior on away {
        NumberAnimation {
            duration: Theme.slideDuration
            easing.type: Easing.OutCubic
        }
    }
    Connections {
        target: layer.sheet

        function onOptionChanged() {
            layer.follow();
        }
    }

    FocusScope {
        id: screen

        width: parent.width
        height: parent.height
        x: Math.max(layer.away, edge.pulled) * width * (layer.isMirrored ? -1 : 1)
        focus: true

        Rectangle {
            anchors.fill: parent
            color: Theme.page

            MouseArea { // nothing below is reached
                anchors.fill: parent
            }
        }
        PageHeader {
            id: header

            width: parent.width
            title: layer.heading
            leadingText: layer.isMirrored ? "›" : "‹"
            leadingName: qsTr("Back")
            onLeadingClicked: layer.sheet.popOption()
        }
        TableList {
            id: list

            anchors.top: header.bottom
            anchors.bottom: parent.bottom
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(parent.width, Theme.widestPage)
            table: layer.table
            Accessible.name: layer.heading
            onExited: header.leadingButton.forceActiveFocus(Qt.TabFocusReason)
        }
        Text {
            textFormat: Text.PlainText
            anchors.centerIn: list
            width: list.width - 2 * Theme.margin
            text: qsTr("Loading…")
            visible: list.count === 0
            color: Theme.secondaryText
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Notice { // below the rows that are there all the same
            id: trouble

            readonly property string reason: layer.table ? layer.table.problem : ""

            x: list.x + Theme.margin
            y: list.y + Math.min(list.contentHeight + Theme.margin, list.height - height)
            width: list.width - 2 * Theme.margin
            text: reason.length > 0 ? qsTr("The list could not be loaded. %1").arg(reason) : ""
            actionText: qsTr("Try again")
            onActionClicked: {
                list.forceActiveFocus();
                layer.table.tryAgain();
            }
        }
        EdgePull {
            id: edge

            y: header.height
            height: parent.height - y
            isMirrored: layer.isMirrored
            onPulledAway: layer.sheet.popOption()
        }
    }
}
