// A row of an option screen: something to choose, or a text to type in.
import QtQuick
import Korvane.Sheet
import Korvane.Models

FocusScope {
    id: row

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

    // Gives the focus to the next row, or to the one before.
    signal stepped(int rows)

    implicitHeight: contents.implicitHeight
    onActiveFocusChanged: if (activeFocus) ListView.view.currentIndex = index
    Keys.onTabPressed: event => {
        event.accepted = index + 1 < ListView.view.count;
        if (event.accepted) stepped(1);
    }
    Keys.onBacktabPressed: event => {
        event.accepted = index > 0;
        if (event.accepted) stepped(-1);
    }

    Loader {
        id: contents

        width: parent.width
        focus: true
        sourceComponent: row.kind === "textView" ? severalLines : row.kind === "field" ? line : choice
    }
    Component {
        id: choice

        ListRow {
            text: row.text
            isChecked: row.isChecked
            isSelectable: row.isSelectable
            focus: true
            onClicked: {
                row.forceActiveFocus();
                row.table.select(row.index);
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
            placeholderText: qsTr("New tag")
            Accessible.name: row.ListView.view.table.headerOf(parseInt(row.section))
            onAccepted: edit.pressReturn()

            EditableText {
                id: edit

                input: field
                target: row.table
                row: row.index
                text: row.editedText
                isEditing: row.isEditing
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
            implicitHeight: Math.max(row.rowHeight * Theme.touchHeight, contentHeight + topPadding + bottomPadding)
            Accessible.name: row.ListView.view.table.headerOf(parseInt(row.section))
            Keys.onTabPressed: event => event.accepted = false
            Keys.onBacktabPressed: event => event.accepted = false

            EditableText {
                input: box
                target: row.table
                row: row.index
                text: row.editedText
                isEditing: row.isEditing
            }
        }
    }
}
