// What stands above the uploads: how the upload service is, which uploads are shown, and what can be done to many.
import QtQuick
import Korvane.Sheet

Column {
    id: head

    required property var uploads
    required property bool isEmpty

    readonly property var connectionTexts: ({
            [Uploads.Connecting]: qsTr("Asking the upload service…"),
            [Uploads.Silent]: qsTr("The upload service does not answer just now. Uploads it has taken over are not lost."),
            [Uploads.Ended]: qsTr("The upload service has ended, since there is nothing left to upload."),
            [Uploads.Lost]: qsTr("The upload service cannot be reached. It is asked again by and by.")
        })
    readonly property bool isConnected: uploads.connection === Uploads.Connected
    readonly property var filters: [
        {filter: Uploads.All, text: qsTr("All"), count: uploads.total},
        {filter: Uploads.Pending, text: qsTr("Under way"), count: uploads.pending},
        {filter: Uploads.Failed, text: qsTr("Failed"), count: uploads.failed},
        {filter: Uploads.Done, text: qsTr("Shared"), count: uploads.done}
    ]

    spacing: Theme.spacing
    topPadding: Theme.spacing
    bottomPadding: Theme.spacing

    Notice {
        visible: !head.isConnected
        isProblem: head.uploads.connection === Uploads.Lost || head.uploads.connection === Uploads.Silent
        text: head.connectionTexts[head.uploads.connection] ?? ""
        actionText: head.uploads.connection === Uploads.Lost || head.uploads.connection === Uploads.Ended ? qsTr("Ask again") : ""
        onActionClicked: head.uploads.reconnect()
    }
    Notice {
        text: head.uploads.problem
        actionText: head.isConnected ? qsTr("Dismiss") : ""
        onActionClicked: head.uploads.forgetProblem()
    }
    Notice {
        visible: head.isConnected && head.uploads.paused
        isProblem: false
        text: qsTr("Uploads are paused.")
        actionText: qsTr("Resume uploads")
        onActionClicked: head.uploads.setPaused(false)
    }
    Flow {
        x: Theme.margin
        width: parent.width - 2 * Theme.margin
        spacing: Theme.spacing * 0.5
        visible: head.uploads.total > 0

        Repeater {
            model: head.filters

            ChoiceButton {
                required property var modelData

                text: qsTr("%1 (%2)").arg(modelData.text).arg(modelData.count)
                isChosen: head.uploads.filter === modelData.filter
                onClicked: head.uploads.filter = modelData.filter
            }
        }
    }
    ButtonFlow {
        visible: head.isConnected && head.uploads.failed + head.uploads.waiting + head.uploads.done > 0

        ActionButton {
            text: qsTr("Retry all")
            visible: head.uploads.failed + head.uploads.waiting > 0
            onClicked: head.uploads.retryAll()
        }
        ActionButton {
            text: qsTr("Clear what is shared")
            visible: head.uploads.done > 0
            onClicked: head.uploads.clearDone()
        }
    }
    Text {
        textFormat: Text.PlainText
        x: Theme.margin
        width: parent.width - 2 * Theme.margin
        topPadding: 3 * Theme.lineHeight
        visible: head.isEmpty
        text: head.uploads.total > 0 ? qsTr("There is nothing of this kind.")
                                     : qsTr("Nothing is being uploaded. What you share shows up here.")
        color: Theme.secondaryText
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
