// A row of a list: a title, perhaps a value, a check mark or an arrow that says that more is behind it.
import QtQuick
import QtQuick.Templates as T
import Korvane.Sheet

T.AbstractButton {
    id: row

    property string value
    property bool isChecked: false
    property bool leadsOn: false // to another screen
    property bool isSelectable: true
    property bool hasSeparator: true
    readonly property bool valueBelow: title.implicitWidth + valueText.implicitWidth + marks.width + 3 * Theme.spacing + 2 * Theme.margin > width

    implicitHeight: Math.max(Theme.touchHeight, words.implicitHeight + 2 * Theme.spacing)
    activeFocusOnTab: isSelectable
    Accessible.role: isChecked || !leadsOn ? Accessible.ListItem : Accessible.Button
    Accessible.name: value.length > 0 ? text + ", " + value : text
    Accessible.checkable: !leadsOn && isSelectable
    Accessible.checked: isChecked
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: if (isSelectable) clicked()
    Keys.onEnterPressed: if (isSelectable) clicked()

    background: Rectangle {
        color: row.down && row.isSelectable ? Theme.pressed : Theme.surface

        Separator {
            visible: row.hasSeparator
        }
        FocusRing {
            control: row
        }
    }
    contentItem: Item {
        Grid {
            id: words

            anchors.left: parent.left
            anchors.leftMargin: Theme.margin
            anchors.right: marks.left
            anchors.rightMargin: Theme.spacing
            anchors.verticalCenter: parent.verticalCenter
            columns: row.valueBelow ? 1 : 2
            columnSpacing: Theme.spacing

            Text {
                id: title

                textFormat: Text.PlainText
                width: row.valueBelow || valueText.text.length === 0 ? words.width : Math.min(implicitWidth, words.width)
                text: row.text
                color: Theme.text
                wrapMode: Text.Wrap
                maximumLineCount: 3
                elide: Text.ElideRight
                horizontalAlignment: Text.AlignLeft
            }
            Text {
                id: valueText

                textFormat: Text.PlainText
                width: row.valueBelow ? words.width : words.width - title.width - Theme.spacing
                text: row.value
                visible: text.length > 0
                color: Theme.secondaryText
                wrapMode: Text.Wrap
                maximumLineCount: 3
                elide: Text.ElideRight
                horizontalAlignment: row.valueBelow ? Text.AlignLeft : Text.AlignRight
            }
        }
        Text {
            id: marks

            textFormat: Text.PlainText
            anchors.right: parent.right
            anchors.rightMargin: Theme.margin
            anchors.verticalCenter: parent.verticalCenter
            text: row.isChecked ? "✓" : row.leadsOn ? (row.LayoutMirroring.enabled ? "‹" : "›") : ""
            color: row.isChecked ? Theme.accent : Theme.secondaryText
            font.pixelSize: Theme.largeFontPixelSize
            font.bold: row.isChecked
            Accessible.ignored: true
        }
    }
}
