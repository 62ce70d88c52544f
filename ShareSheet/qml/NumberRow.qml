// A row with a number of which one of a few choices is taken.
import QtQuick
import Korvane.Sheet

Rectangle {
    id: row

    property string text
    property var choices: []
    property int value
    property var wordsFor: number => Number(number).toLocaleString(Qt.locale(), "f", 0)
    // A number set elsewhere is shown among the others.
    readonly property var shown: choices.includes(value) ? choices : [...choices, value].sort((a, b) => a - b)

    signal picked(int number)

    implicitHeight: contents.height + 2 * Theme.spacing
    color: Theme.surface

    Column {
        id: contents

        x: Theme.margin
        y: Theme.spacing
        width: parent.width - 2 * Theme.margin
        spacing: 2

        Text {
            textFormat: Text.PlainText
            width: parent.width
            text: row.text
            color: Theme.text
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignLeft
        }
        Flow {
            width: parent.width
            spacing: Theme.spacing * 0.5
            Accessible.role: Accessible.Grouping
            Accessible.name: row.text

            Repeater {
                model: row.shown

                ChoiceButton {
                    required property int modelData

                    text: row.wordsFor(modelData)
                    isChosen: row.value === modelData
                    Accessible.description: row.text
                    onClicked: row.picked(modelData)
                }
            }
        }
    }
    Separator {
    }
}
