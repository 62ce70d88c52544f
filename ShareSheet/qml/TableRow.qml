// A row of an option screen: something to choose, or a text to type in.
import QtQuick
import Korvane.Sheet

FocusScope {
    id: tableRow

    required property int index
    required property string text
    required property string kind
    required property string editedText
    required property bool isEditing
    required property bool isChecked
    required property bool isSelectable
    required property real rowHeight // in usual rows
    required property string section
    property var table: null

    signal stepped(int step) // to the next row with 1, to the one before with -1

    function becomeCurrent() {
        if (activeFocus)
            ListView.view.currentIndex = index;
    }

    implicitHeight: contents.implicitHeight
    // A row may have the keyboard as soon as it is made; the list takes no current row before it is done with that.
    onActiveFocusChanged: {
        becomeCurrent();
        Qt.callLater(becomeCurrent);
    }
    Keys.onTabPressed: stepped(1)
    Keys.onBacktabPressed: stepped(-1)

    Loader {
        id: contents

        width: parent.width
        focus: true
        sourceComponent: tableRow.kind === "textView" ? severalLines : tableRow.kind === "field" ? line : choice
    }
    Component {
        id: choice

        ChoiceRow {
            text: tableRow.text
            isChecked: tableRow.isChecked
            isSelectable: tableRow.isSelectable
            focus: true
            onClicked: {
                tableRow.forceActiveFocus();
                tableRow.table.select(tableRow.index);
            }
        }
    }
    Component {
        id: line

        InputField {
            id: field

            isFramed: false
            focus: true
            leftPadding: Theme.margin
            rightPadding: Theme.margin
            placeholderText: qsTr("Add…")
            Accessible.name: tableRow.ListView.view.table.headerOf(parseInt(tableRow.section))
            onAccepted: edit.pressReturn()

            EditableText {
                id: edit

                input: field
                target: tableRow.table
                row: tableRow.index
                text: tableRow.editedText
                isEditing: tableRow.isEditing
            }
            Rectangle {
                x: Theme.margin
                anchors.bottom: parent.bottom
                width: parent.width - x
                height: 1
                color: Theme.separator
                visible: !field.activeFocus
            }
        }
    }
    Component {
        id: severalLines

        TextBox {
            id: box

            focus: true
            implicitHeight: Math.max(tableRow.rowHeight * Theme.touchHeight, contentHeight + topPadding + bottomPadding)
            Accessible.name: tableRow.ListView.view.table.headerOf(parseInt(tableRow.section))
            leave: step => tableRow.stepped(step)

            EditableText {
                input: box
                target: tableRow.table
                row: tableRow.index
                text: tableRow.editedText
                isEditing: tableRow.isEditing
            }
        }
    }
}
