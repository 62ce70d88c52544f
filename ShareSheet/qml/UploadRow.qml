// One upload.
import QtQuick
import Korvane.Sheet

FocusScope {
    id: row

    required property int index
    required property string uploadID
    required property string title
    required property string service
    required property string uploadState
    required property string stateText
    required property string reason
    required property string bytesText
    required property string paceText
    required property real progress
    required property bool canRetry
    required property string removalQuestion
    required property string thumbnail
    // Of the rows only the current one is a stop of the Tab key; the arrow keys lead to the others.
    readonly property int stop: ListView.isCurrentItem ? Qt.StrongFocus : Qt.ClickFocus
    readonly property bool isRunning: uploadState === "running"
    readonly property string detail: [service, stateText, bytesText, paceText].filter(part => part.length > 0).join(" · ")

    signal retryAsked
    signal removalAsked

    activeFocusOnTab: ListView.isCurrentItem || activeFocus
    implicitHeight: Math.max(words.height, mark.height) + 2 * Theme.spacing + 1
    Accessible.role: Accessible.ListItem
    Accessible.name: [title, detail, reason].filter(part => part.length > 0).join(", ")
    Accessible.focusable: true
    Accessible.focused: activeFocus
    // Who comes back with the Tab key comes to the row first, and to all of its buttons.
    onActiveFocusChanged: if (!activeFocus) retrial.focus = removal.focus = false
    Keys.onDeletePressed: removalAsked()
    Keys.onReturnPressed: if (canRetry) retryAsked()
    Keys.onEnterPressed: if (canRetry) retryAsked()

    Rectangle {
        anchors.fill: parent
        color: Theme.surface
    }
    TapHandler {
        onTapped: {
            row.ListView.view.currentIndex = row.index;
            row.forceActiveFocus();
        }
    }
    ServiceMark {
        id: mark

        anchors.left: parent.left
        anchors.leftMargin: Theme.margin
        y: Theme.spacing
        service: row.service
        uploadState: row.uploadState
        thumbnail: row.thumbnail
    }
    Column {
        id: words

        anchors.left: mark.right
        anchors.leftMargin: Theme.spacing
        anchors.right: parent.right
        anchors.rightMargin: Theme.margin
        y: Theme.spacing
        spacing: 2

        Text {
            anchors.left: parent.left
            width: parent.width - removal.width
            text: row.title
            color: Theme.text
            elide: Text.ElideRight
            wrapMode: Text.Wrap
            maximumLineCount: 2
            horizontalAlignment: Text.AlignLeft
            textFormat: Text.PlainText
        }
        Text {
            textFormat: Text.PlainText
            anchors.left: parent.left
            width: parent.width - removal.width
            text: row.detail
            color: row.uploadState === "failed" ? Theme.problem : Theme.secondaryText
            font.pixelSize: Theme.smallFontPixelSize
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignLeft
        }
        ProgressLine {
            width: parent.width
            visible: row.isRunning
            value: row.progress
        }
        Text {
            width: parent.width
            visible: text.length > 0
            text: row.reason
            color: Theme.secondaryText
            font.pixelSize: Theme.smallFontPixelSize
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignLeft
            textFormat: Text.PlainText
        }
        ActionButton {
            id: retrial

            anchors.left: parent.left
            anchors.leftMargin: -Theme.spacing // its word begins where the others do
            visible: row.canRetry
            text: qsTr("Retry")
            Accessible.name: qsTr("Retry “%1”").arg(row.title)
            focusPolicy: row.stop
            onClicked: row.retryAsked()
        }
    }
    ActionButton {
        id: removal

        anchors.right: parent.right
        anchors.rightMargin: 4
        y: 2
        width: Theme.touchHeight
        text: "✕"
        focusPolicy: row.stop
        ink: Theme.secondaryText
        Accessible.name: qsTr("Remove “%1”").arg(row.title)
        onClicked: row.removalAsked()
    }
    Separator {
    }
    FocusRing {
        control: row
        visible: row.activeFocus && !retrial.activeFocus && !removal.activeFocus
    }
}
