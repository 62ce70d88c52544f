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
    readonly property bool isBodyUsed: isTop && sheet.option === null

    // What Escape and the Back key do.
    function goBack() {
        if (sheet.isHandingOver)
            return;
        if (sheet.hasAlert)
            sheet.dismissAlert();
        else if (sheet.option !== null)
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
    LatePart {
        anchors.fill: parent
        file: "OptionLayer.qml"
        sheet: page.sheet
        isNeeded: page.sheet.option !== null
        enabled: page.isTop
    }
    LatePart {
        anchors.fill: parent
        file: "SettingsAlert.qml"
        sheet: page.sheet
        isNeeded: page.sheet.hasAlert
    }
    LatePart {
        anchors.fill: parent
        file: "HandingOver.qml"
        sheet: page.sheet
        isNeeded: page.sheet.isHandingOver
    }
}
