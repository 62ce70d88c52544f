// A question over the window; nothing else can be used before it is answered. Whoever shows it hides it, too.
import QtQuick
import QtQuick.Templates as T
import Korvane.Sheet

Item {
    id: dialog

    property alias title: heading.text
    property alias message: words.text
    property alias acceptText: accept.text
    property alias rejectText: reject.text
    property bool isDangerous: false // what it asks cannot be undone: the other answer is the one at hand

    signal accepted
    signal rejected

    T.Popup {
        parent: T.Overlay.overlay
        x: (parent.width - width) / 2
        y: (parent.height - height) / 2
        width: Math.min(parent.width - 2 * Theme.margin, 26 * Theme.lineHeight)
        height: Math.min(contents.implicitHeight + 2 * padding, parent.height - 2 * Theme.margin)
        padding: Theme.margin
        visible: dialog.visible
        modal: true
        focus: true
        closePolicy: T.Popup.CloseOnEscape
        onOpened: (dialog.isDangerous ? reject : accept).forceActiveFocus()
        onClosed: if (dialog.visible) dialog.rejected()

        background: Rectangle {
            radius: Theme.radius
            color: Theme.surface
            border.width: 1
            border.color: Theme.separator
        }
        T.Overlay.modal: Rectangle {
            color: Theme.shade
        }
        contentItem: ScrollArea {
            contentHeight: contents.implicitHeight
            Accessible.role: Accessible.Dialog
            Accessible.name: dialog.title
            Accessible.description: dialog.message

            Column {
                id: contents

                width: parent.width
                spacing: Theme.spacing

                Text {
                    id: heading

                    width: parent.width
                    visible: text.length > 0
                    color: Theme.text
                    font.bold: true
                    font.pixelSize: Theme.largeFontPixelSize
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignLeft
                    textFormat: Text.PlainText
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }
                Text {
                    id: words

                    width: parent.width
                    color: Theme.text
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignLeft
                    textFormat: Text.PlainText
                    Accessible.role: Accessible.AlertMessage
                    Accessible.name: text
                }
                Flow {
                    width: parent.width
                    spacing: Theme.spacing
                    layoutDirection: Qt.RightToLeft

                    ActionButton {
                        id: accept

                        isMain: !dialog.isDangerous
                        ink: dialog.isDangerous ? Theme.problem : Theme.accentText
                        KeyNavigation.tab: reject
                        KeyNavigation.backtab: reject
                        onClicked: dialog.accepted()
                    }
                    ActionButton {
                        id: reject

                        KeyNavigation.tab: accept
                        KeyNavigation.backtab: accept
                        onClicked: dialog.rejected()
                    }
                }
            }
        }
    }
}
