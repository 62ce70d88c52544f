// Several lines of text to type in.
import QtQuick
import QtQuick.Templates as T
import Korvane.Sheet

T.TextArea {
    id: area

    property int fewestLines: 3
    // Where the keyboard goes with the Tab key, 1, or back, -1.
    property var leave: step => nextItemInFocusChain(step > 0).forceActiveFocus(step > 0 ? Qt.TabFocusReason : Qt.BacktabFocusReason)

    implicitHeight: Math.max(Theme.touchHeight, Theme.lineHeight * fewestLines, contentHeight) + topPadding + bottomPadding
    leftPadding: Theme.margin
    rightPadding: Theme.margin
    topPadding: Theme.spacing
    bottomPadding: Theme.spacing
    font.family: Theme.fontFamily
    font.pointSize: Theme.fontPointSize
    color: Theme.text
    placeholderTextColor: Theme.secondaryText
    selectionColor: Theme.accent
    selectedTextColor: Theme.accentText
    selectByMouse: true
    textFormat: TextEdit.PlainText
    wrapMode: TextEdit.Wrap
    // Of an empty text the input method tells the direction, which need not be the one in which the window is read.
    horizontalAlignment: length === 0 && preeditText.length === 0 ? TextEdit.AlignLeft : undefined
    Accessible.role: Accessible.EditableText
    Accessible.name: placeholderText
    Accessible.multiLine: true
    Keys.onTabPressed: leave(1)
    Keys.onBacktabPressed: leave(-1)

    background: Rectangle {
        color: Theme.surface

        FocusRing {
            control: area
        }
    }

    Text {
        textFormat: Text.PlainText
        x: area.leftPadding
        y: area.topPadding
        width: area.width - area.leftPadding - area.rightPadding
        text: area.placeholderText
        color: area.placeholderTextColor
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignLeft
        visible: area.length === 0 && area.preeditText.length === 0
        Accessible.ignored: true
    }
}
