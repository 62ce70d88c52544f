// The rows of an option screen.
import QtQuick
import Korvane.Sheet

ListView {
    id: list

    property var table: null

    // The row at that height of the view; a header belongs to the row behind it.
    function rowAt(height, step) {
        for (let y = height; y >= 0 && y <= list.height; y += step) {
            const row = indexAt(1, contentY + y);
            if (row >= 0)
                return row;
        }
        return step > 0 ? 0 : count - 1;
    }
    function tellRows() {
        if (table && count > 0 && height > 0)
            table.showRows(rowAt(0, Theme.lineHeight), rowAt(height - 1, -Theme.lineHeight));
    }
    function tellRowsSoon() {
        Qt.callLater(tellRows);
    }

    model: table
    clip: true
    focus: true
    activeFocusOnTab: true
    keyNavigationEnabled: true
    boundsBehavior: Flickable.StopAtBounds
    cacheBuffer: Math.max(0, height)
    onContentYChanged: tellRowsSoon()
    onContentHeightChanged: tellRowsSoon()
    onHeightChanged: tellRowsSoon()
    onCountChanged: tellRowsSoon()
    Accessible.role: Accessible.List

    section.property: "section"
    section.delegate: SectionHeader {
        required property string section

        width: ListView.view ? ListView.view.width : 0
        text: list.table ? list.table.headerOf(parseInt(section)) : ""
        visible: text.length > 0
        height: visible ? implicitHeight : 0
    }
    delegate: TableRow {
        width: ListView.view.width
        table: list.table
        onStepped: rows => {
            list.currentIndex += rows;
            list.currentItem.forceActiveFocus(Qt.TabFocusReason);
        }
    }
    add: Transition {
        NumberAnimation {
            property: "opacity"
            from: 0
            to: 1
            duration: Theme.slideDuration
        }
    }
    remove: Transition {
        NumberAnimation {
            property: "opacity"
            to: 0
            duration: Theme.slideDuration
        }
    }
    displaced: Transition {
        NumberAnimation {
            properties: "y"
            duration: Theme.slideDuration
            easing.type: Easing.OutCubic
        }
        NumberAnimation {
            property: "opacity"
            to: 1
            duration: 1
        }
    }

    Connections {
        target: list.table

        function onScrolledTo(first, last) {
            list.positionViewAtIndex(first, ListView.Contain);
            list.positionViewAtIndex(last, ListView.Contain);
        }
    }
}
