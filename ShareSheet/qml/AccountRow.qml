// One account; the one in use is checked.
import QtQuick
import Korvane.Sheet

Item {
    id: row

    required property string username
    required property bool isInUse
    property string serviceName

    signal useAsked
    signal removalAsked

    implicitHeight: choice.implicitHeight

    ListRow {
        id: choice

        anchors.left: parent.left
        anchors.right: removal.left
        text: row.username
        isChecked: row.isInUse
        Accessible.role: Accessible.RadioButton
        Accessible.name: qsTr("%1 account “%2”").arg(row.serviceName).arg(row.username)
        onClicked: if (!row.isInUse) row.useAsked()
    }
    Rectangle {
        anchors.fill: removal
        color: Theme.surface
    }
    ActionButton {
        id: removal

        anchors.right: parent.right
        height: parent.height
        text: "✕"
        ink: Theme.secondaryText
        Accessible.name: qsTr("Remove the %1 account “%2”").arg(row.serviceName).arg(row.username)
        onClicked: row.removalAsked()
    }
}
