// One service: its accounts, and the application's keys that a sign-in needs.
import QtQuick
import Korvane.Sheet

Column {
    id: section

    required property var access // a ServiceAccess object

    // A question that the page asks over all of itself; what is done if the answer is yes.
    signal asked(string question, var action)

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
                const accounts = section.access.accounts;
                const id = accountID;
                section.asked(qsTr("Remove the %1 account “%2”? What is shared with it already stays there; what is still to be uploaded with it waits for a new sign-in.").arg(section.access.name).arg(username), () => accounts.remove(id));
            }
        }
    }
    Note {
        width: parent.width
        visible: section.access.accounts.count === 0 && section.access.accounts.problem.length === 0
        text: qsTr("There is no account yet.")
    }
    Note {
        width: parent.width
        visible: section.access.accounts.count > 1
        text: qsTr("What you share goes out with the account that is checked.")
    }
    Notice {
        text: section.access.accounts.problem
    }
    SignInPanel {
        width: parent.width
        access: section.access
    }
    KeysPanel {
        width: parent.width
        access: section.access
        onRemovalAsked: section.asked(qsTr("Remove the keys of your application at %1? Accounts that are added already stay; to add another, you need the keys again.").arg(section.access.name), () => section.access.keys.remove())
    }
}
