// The share sheet.
import QtQuick
import QtQuick.Templates as T
import Korvane.Sheet

FocusScope {
    id: page

    required property SheetModel sheet
    readonly property string title: sheet.title
    property bool wasLeft: false // for the settings
    readonly property bool isTop: !sheet.hasAlert && !sheet.isHandingOver
    readonly property bool isBodyUsed: isTop && !options.isShown

    // What Escape and the Back key do.
    function goBack() {
        if (sheet.isHandingOver)
            return;
        if (sheet.hasAlert)
            sheet.dismissAlert();
        else if (options.isShown)
            sheet.popOption();
        else
            sheet.cancel();
    }

    function closeWindow() {
        sheet.cancel();
    }

    T.StackView.onDeactivated: wasLeft = true
    T.StackView.onActivated: if (wasLeft) sheet.appearAgain()
    onIsBodyUsedChanged: if (isBodyUsed) body.forceActiveFocus()

    Shortcut {
        sequence: "Escape"
        enabled: page.activeFocus
        onActivated: page.goBack()
    }
    Shortcut {
        sequences: ["Ctrl+Return", "Ctrl+Enter"]
        enabled: page.activeFocus && page.isTop
        onActivated: page.sheet.post()
    }

    FocusScope {
        id: body

        anchors.fill: parent
        enabled: page.isBodyUsed
        focus: true

        PageHeader {
            id: header

            width: parent.width
            title: page.title
            leadingText: qsTr("Cancel")
            trailingText: qsTr("Post")
            trailingEnabled: page.sheet.canPost
            onLeadingClicked: page.sheet.cancel()
            onTrailingClicked: page.sheet.post()
        }
        SheetBody {
            anchors.top: header.bottom
            anchors.bottom: parent.bottom
            width: parent.width
            sheet: page.sheet
            focus: true
        }
    }
    OptionLayer {
        id: options

        anchors.fill: parent
        sheet: page.sheet
        enabled: isShown && page.isTop
    }
    AlertBox {
        anchors.fill: parent
        visible: page.sheet.hasAlert
        title: page.sheet.alertTitle
        message: page.sheet.alertMessage
        acceptText: qsTr("Settings")
        rejectText: qsTr("Not now")
        onAccepted: page.sheet.openSettings()
        onRejected: page.sheet.dismissAlert()
    }
    Rectangle {
        anchors.fill: parent
        color: Theme.shade
        visible: page.sheet.isHandingOver

        MouseArea {
            anchors.fill: parent
        }
        Rectangle {
            anchors.centerIn: parent
            width: Math.min(parent.width - 2 * Theme.margin, words.implicitWidth + 4 * Theme.margin)
            height: words.height + 2 * Theme.margin
            radius: Theme.radius
            color: Theme.surface

            Text {
                id: words

                anchors.centerIn: parent
                width: Math.min(implicitWidth, page.width - 4 * Theme.margin)
                text: qsTr("Handing over to the upload service…")
                color: Theme.text
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
                Accessible.role: Accessible.AlertMessage
                Accessible.name: text
            }
        }
    }
}
