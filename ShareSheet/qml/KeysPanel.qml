// The keys of the user's own application: what is stored, or two fields to fill in.
import QtQuick
import Korvane.Sheet

Column {
    id: panel

    required property var keys // a KeysModel object
    required property string serviceName
    property bool isEditing: false
    readonly property bool showsFields: !keys.isBusy && (isEditing || !keys.areStored)

    // The page holds a panel for each service.
    function named(text) {
        return qsTr("%1: %2").arg(serviceName).arg(text);
    }

    spacing: Theme.spacing
    bottomPadding: Theme.spacing

    SectionHeader {
        width: parent.width
        text: qsTr("%1 application keys").arg(panel.serviceName)
    }
    Note {
        width: parent.width
        visible: panel.showsFields
        text: qsTr("Register an application of your own with permission to upload, and copy its two keys here:") + "\n" + panel.keys.registrationAddress
    }
    ActionButton {
        x: Theme.margin - 8
        width: Math.min(implicitWidth, parent.width - 2 * x)
        visible: panel.showsFields
        text: qsTr("Open that page")
        Accessible.name: panel.named(text)
        onClicked: Qt.openUrlExternally(panel.keys.registrationAddress)
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
        Accessible.name: panel.named(placeholderText)
        inputMethodHints: Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
        onAccepted: secret.forceActiveFocus()
    }
    InputField {
        id: secret

        x: Theme.margin
        width: parent.width - 2 * Theme.margin
        visible: panel.showsFields
        placeholderText: qsTr("Consumer secret")
        echoMode: TextInput.Password
        inputMethodHints: Qt.ImhSensitiveData | Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
        Accessible.passwordEdit: true
        Accessible.description: placeholderText
        onAccepted: panel.keys.store(key.text, text)
    }
    Note {
        width: parent.width
        visible: panel.keys.areStored && !panel.showsFields
        text: qsTr("Consumer key: %1").arg(panel.keys.consumerKey) + "\n" + qsTr("The consumer secret is stored.")
        textFormat: Text.PlainText
    }
    Notice {
        x: Theme.margin
        width: parent.width - 2 * Theme.margin
        visible: text.length > 0
        text: panel.keys.problem
    }
    Flow {
        x: Theme.margin - 8
        width: parent.width - 2 * x

        ActionButton {
            visible: panel.showsFields
            text: qsTr("Store the keys")
            Accessible.name: panel.named(text)
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
            Accessible.name: panel.named(text)
            onClicked: {
                key.text = panel.keys.consumerKey;
                panel.isEditing = true;
                key.forceActiveFocus();
            }
        }
        ActionButton {
            visible: panel.keys.areStored && !panel.showsFields
            text: qsTr("Remove the keys")
            Accessible.name: panel.named(text)
            onClicked: panel.keys.remove()
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
