// What is being uploaded, what waits, what has failed and what is done.
import QtQuick
import QtQuick.Templates as T
import Korvane.Sheet

T.Page {
    id: page

    required property var uploads // an Uploads object

    readonly property bool isEmpty: uploads.connection === Uploads.Connected && list.count === 0

    title: qsTr("Uploads")
    background: Rectangle {
        color: Theme.page
    }
    Keys.onEscapePressed: page.T.ApplicationWindow.window.closePage()

    PageHeader {
        id: header

        width: parent.width
        title: page.title
        leadingText: qsTr("Close")
        trailingText: page.uploads.paused ? qsTr("Resume") : qsTr("Pause")
        trailingEnabled: page.uploads.connection === Uploads.Connected
        onLeadingClicked: page.T.ApplicationWindow.window.closePage()
        onTrailingClicked: page.uploads.setPaused(!page.uploads.paused)
    }
    ListView {
        id: list

        objectName: "uploads"
        anchors.top: header.bottom
        anchors.bottom: parent.bottom
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, Theme.widestPage)
        clip: true
        model: page.uploads.model
        cacheBuffer: 400
        boundsBehavior: Flickable.StopAtBounds
        focus: true
        keyNavigationEnabled: true
        Accessible.role: Accessible.List
        Accessible.name: page.title
        header: UploadsHead {
            width: ListView.view.width
            uploads: page.uploads
            isEmpty: page.isEmpty
        }
        delegate: UploadRow {
            width: ListView.view.width
            onRetryAsked: page.uploads.retry(uploadID)
            onRemovalAsked: {
                if (removalQuestion.length === 0)
                    return page.uploads.remove(uploadID);
                question.uploadID = uploadID;
                question.message = removalQuestion;
            }
        }
        // What is new shows at the top, unless the person reads further down.
        onCountChanged: {
            if (currentIndex < 0 && count > 0)
                currentIndex = 0;
            if (atYBeginning && !moving)
                Qt.callLater(list.positionViewAtBeginning);
        }
    }
    ScrollMark {
        view: list
    }
    Dialog {
        id: question

        property string uploadID

        visible: message.length > 0
        isDangerous: true
        acceptText: qsTr("Remove")
        rejectText: qsTr("Keep")
        onRejected: message = ""
        onAccepted: {
            message = "";
            page.uploads.remove(uploadID);
        }
        onVisibleChanged: if (!visible) list.forceActiveFocus()
    }
}
