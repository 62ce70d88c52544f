// What the sheet says where it has no account, with the way to the settings.
import QtQuick
import Korvane.Sheet

Dialog {
    required property SheetModel sheet

    visible: sheet.hasAlert
    title: sheet.alertTitle
    message: sheet.alertMessage
    acceptText: qsTr("Settings")
    rejectText: qsTr("Not now")
    onAccepted: sheet.openSettings()
    onRejected: sheet.dismissAlert()
}
