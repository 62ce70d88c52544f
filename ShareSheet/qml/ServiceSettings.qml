// One service: its accounts, and the application's keys that a sign-in needs.
import QtQuick
import Korvane.Sheet

Column {
    id: section

    required property var access // a ServiceAccess object
    readonly property var keys: access.keys
    readonly property var signIn: access.signIn

    SectionHeader {
        width: parent.width
        text: qsTr("%1 accounts").arg(section.access.name)
    }
    Repeater {
        model: section.access.accounts

        AccountRow {
            id: row

            required property string accountID

            width: section.width
            serviceName: section.access.name
            onUseAsked: section.access.accounts.use(accountID)
            onRemovalAsked: {
                question.accountID = accountID;
                question.text = qsTr("Remove the %1 account “%2”? What is shared with it already stays there; what is still to be uploaded with it fails.").arg(section.access.name).arg(username);
                question.open();
            }
        }
    }
    Note {
        width: parent.width
        visible: section.access.accounts.count === 0
        text: qsTr("There is no account yet.")
    }
    Note {
        width: parent.width
        visible: section.access.accounts.count > 1
        text: qsTr("What you share goes out with the account that is checked.")
    }
    Notice {
        x: Theme.margin
        width: parent.width - 2 * Theme.margin
        visible: text.length > 0
        text: section.access.accounts.problem
    }
    SignInPanel {
        width: parent.width
        signIn: section.signIn
        canStart: section.keys.areStored
        serviceName: section.access.name
        onStartAsked: typesCode => section.access.addAccount(typesCode)
    }
    KeysPanel {
        width: parent.width
        keys: section.keys
        serviceName: section.access.name
    }
    Question {
        id: question

        property string accountID

        acceptText: qsTr("Remove")
        rejectText: qsTr("Keep")
        onAccepted: section.access.accounts.remove(accountID)
    }
}
