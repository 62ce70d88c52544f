// What stands in the way of a share, above it.
import QtQuick
import Korvane.Sheet

Column {
    required property SheetModel sheet

    spacing: Theme.margin

    Notice {
        text: sheet.failure
    }
    Notice {
        text: sheet.attachments.problems
        actionText: sheet.attachments.isPreparing || sheet.attachments.usableCount === 0 ? "" : qsTr("Leave them out")
        onActionClicked: sheet.attachments.leaveProblemsOut()
    }
}
