// The rows of an option screen.
import QtQuick
import Korvane.Sheet

ListView {
    id: list

    property var table: null

    signal exited // with the Tab key

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
    highlightMoveDuration: Theme.slideDuration
    boundsBehavior: Flickable.StopAtBounds
    cacheBuffer: Math.max(0, height)
    onContentYChanged: tellRowsSoon()
    onContentHeightChanged: tellRowsSoon()
    onHeightChanged: tellRowsSoon()
    onCountChanged: {
        if (currentIndex < 0 && count > 0)
            currentIndex = 0; // so that the keyboard is somewhere
        tellRowsSoon();
    }
    Accessible.role: Accessible.List

    section.property: "section"
    section.delegate: Item {
        required property string section

        width: ListView.view ? ListView.view.width : 0
        height: header.text.length > 0 ? header.implicitHeight : 0

        SectionHeader {
            id: header

            width: parent.width
            text: list.table ? list.table.headerOf(parseInt(parent.section)) : ""
        }
    }
    delegate: TableRow {
        width: ListView.view.width
        table: list.table
        onStepped: step => {
            if (index + step < 0 || index + step >= list.count)
                return list.exited();
            list.currentIndex = index + step;
            list.currentItem.forceActiveFocus(step > 0 ? Qt.TabFocusReason : Qt.BacktabFocusReason);
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
