// The keys of the user's own application: what is stored, or two fields to fill in.
import QtQuick
import Korvane.Sheet

Column {
    id: panel

    required property var access // a ServiceAccess object
    readonly property var keys: access.keys
    property bool isEditing: false
    readonly property bool showsFields: !keys.isBusy && (isEditing || !keys.areStored)

    signal removalAsked

    spacing: Theme.spacing
    bottomPadding: Theme.spacing

    SectionHeader {
        width: parent.width
        text: qsTr("%1 application keys").arg(panel.access.name)
    }
    Note {
        width: parent.width
        visible: panel.showsFields
        text: qsTr("Register an application of your own with permission to upload, and copy its two keys here:") + "\n" + panel.keys.registrationAddress
    }
    ButtonFlow {
        visible: panel.showsFields

        ActionButton {
            text: qsTr("Open that page")
            Accessible.name: panel.access.named(text)
            onClicked: Qt.openUrlExternally(panel.keys.registrationAddress)
        }
    }
    Note {
        width: parent.width
        visible: panel.keys.isBusy
        text: qsTr("Asking the keyring…")
    }
    InputField {
        id: key

        x: Theme.margin
        width: parent.width - 2 * Theme.margin
        visible: panel.showsFields
        placeholderText: qsTr("Consumer key")
        Accessible.name: panel.access.named(placeholderText)
        inputMethodHints: Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
        onAccepted: secret.forceActiveFocus()
    }
    Item { // says what the field is for: of a field that hides its text nothing is told, not even its name
        x: Theme.margin
        width: parent.width - 2 * Theme.margin
        height: secret.height
        visible: panel.showsFields
        Accessible.role: Accessible.Grouping
        Accessible.name: panel.access.named(secret.placeholderText)

        InputField {
            id: secret

            width: parent.width
            placeholderText: qsTr("Consumer secret")
            echoMode: TextInput.Password
            inputMethodHints: Qt.ImhSensitiveData | Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
            onAccepted: panel.keys.store(key.text, text)
        }
    }
    Note {
        width: parent.width
        visible: panel.keys.areStored && !panel.showsFields
        text: qsTr("Consumer key: %1").arg(panel.keys.consumerKey) + "\n" + qsTr("The consumer secret is stored.")
        textFormat: Text.PlainText
    }
    Note {
        width: parent.width
        visible: panel.keys.areInFile && !panel.showsFields
        text: qsTr("The secret is in a file that only you can read, since no keyring could be used.")
    }
    Notice {
        text: panel.keys.problem
    }
    ButtonFlow {
        ActionButton {
            visible: panel.showsFields
            text: qsTr("Store the keys")
            Accessible.name: panel.access.named(text)
            onClicked: panel.keys.store(key.text, secret.text)
        }
        ActionButton {
            visible: panel.isEditing && panel.showsFields
            text: qsTr("Cancel")
            onClicked: panel.isEditing = false
        }
        ActionButton {
            visible: panel.keys.areStored && !panel.showsFields
            text: qsTr("Other keys…")
            Accessible.name: panel.access.named(text)
            onClicked: {
                key.text = panel.keys.consumerKey;
                panel.isEditing = true;
                key.forceActiveFocus();
            }
        }
        ActionButton {
            visible: panel.keys.areStored && !panel.showsFields
            text: qsTr("Remove the keys")
            Accessible.name: panel.access.named(text)
            onClicked: panel.removalAsked()
        }
    }
    Connections {
        target: panel.keys

        function onStored() {
            key.clear();
            secret.clear();
            panel.isEditing = false;
        }
    }
}
