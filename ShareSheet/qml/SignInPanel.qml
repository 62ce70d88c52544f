// Adds an account: the person says yes in the browser, and perhaps types a code here.
import QtQuick
import Korvane.Sheet

Column {
    id: panel

    required property var access // a ServiceAccess object
    readonly property var signIn: access.signIn
    readonly property bool isAtRest: signIn.step === SignInModel.None || signIn.step === SignInModel.Done

    spacing: Theme.spacing
    topPadding: isAtRest ? 0 : Theme.spacing
    bottomPadding: Theme.spacing

    Notice {
        text: panel.signIn.problem
    }
    Notice {
        isProblem: false
        visible: panel.signIn.step === SignInModel.Done
        text: qsTr("The account “%1” is ready.").arg(panel.signIn.username)
    }
    ButtonFlow {
        visible: panel.isAtRest

        ActionButton {
            text: qsTr("Add an account…")
            Accessible.name: panel.access.named(text)
            enabled: panel.access.keys.areStored
            onClicked: panel.access.addAccount(false)
        }
        ActionButton {
            text: qsTr("Add with a code…")
            Accessible.name: panel.access.named(text)
            enabled: panel.access.keys.areStored
            Accessible.description: qsTr("For a browser on another device: it shows a code that you type here.")
            onClicked: panel.access.addAccount(true)
        }
    }
    Note {
        width: parent.width
        visible: !panel.access.keys.areStored && panel.isAtRest
        text: qsTr("To sign in, Korvane first needs the keys of your own application, below.")
    }
    Note {
        width: parent.width
        visible: !panel.isAtRest
        text: panel.signIn.step === SignInModel.Asking ? qsTr("Asking %1…").arg(panel.access.name)
            : panel.signIn.step === SignInModel.Storing ? qsTr("Storing the account…")
            : panel.signIn.typesCode ? qsTr("Open this address, also on another device, allow Korvane to upload, and type the code that is shown:")
                                     : qsTr("Allow Korvane to upload in the browser that has opened. If none has, open this address on this device:")
    }
    TextEdit {
        x: Theme.margin
        width: parent.width - 2 * Theme.margin
        height: Math.max(Theme.touchHeight, contentHeight)
        verticalAlignment: TextEdit.AlignVCenter
        visible: panel.signIn.step === SignInModel.Person
        text: panel.signIn.pageAddress
        textFormat: TextEdit.PlainText
        color: Theme.text
        selectionColor: Theme.accent
        selectedTextColor: Theme.accentText
        font.pixelSize: Theme.smallFontPixelSize
        wrapMode: TextEdit.WrapAnywhere
        readOnly: true
        selectByMouse: true
        activeFocusOnTab: true
        Accessible.role: Accessible.EditableText
        Accessible.name: qsTr("Address of the sign-in page")
        Accessible.readOnly: true
        KeyNavigation.priority: KeyNavigation.BeforeItem
    }
    InputField {
        id: code

        x: Theme.margin
        width: parent.width - 2 * Theme.margin
        visible: panel.signIn.step === SignInModel.Person && panel.signIn.typesCode
        placeholderText: qsTr("Code")
        inputMethodHints: Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
        onVisibleChanged: if (visible) {
            clear();
            forceActiveFocus();
        }
        onAccepted: panel.signIn.enterCode(text)
    }
    ButtonFlow {
        visible: !panel.isAtRest && panel.signIn.step !== SignInModel.Storing

        ActionButton {
            text: qsTr("Use this code")
            visible: code.visible
            enabled: code.text.trim().length > 0
            onClicked: panel.signIn.enterCode(code.text)
        }
        ActionButton {
            text: qsTr("Open the page again")
            visible: panel.signIn.step === SignInModel.Person
            onClicked: panel.signIn.openPage()
        }
        ActionButton {
            text: qsTr("Cancel the sign-in")
            onClicked: panel.signIn.cancel()
        }
    }
}
