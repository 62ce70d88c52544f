// Asks before something is done that cannot be undone.
import QtQuick
import QtQuick.Templates as T
import Korvane.Sheet

T.Popup {
    id: question

    property string text
    property string acceptText
    property string rejectText

    signal accepted

    parent: T.Overlay.overlay
    x: (parent.width - width) / 2
    y: (parent.height - height) / 2
    width: Math.min(parent.width - 2 * Theme.margin, 26 * Theme.lineHeight)
    height: Math.min(implicitHeight, parent.height - 2 * Theme.margin)
    implicitHeight: contents.implicitHeight + 2 * padding
    padding: Theme.margin
    modal: true
    focus: true
    onOpened: keep.forceActiveFocus()

    background: Rectangle {
        radius: Theme.radius
        color: Theme.surface
        border.width: 1
        border.color: Theme.separator
    }
    T.Overlay.modal: Rectangle {
        color: Theme.shade
    }
    contentItem: Flickable {
        contentHeight: contents.implicitHeight
        clip: true

        Column {
            id: contents

            width: parent.width
            spacing: Theme.margin

            Text {
                width: parent.width
                text: question.text
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
                layoutDirection: LayoutMirroring.enabled ? Qt.LeftToRight : Qt.RightToLeft

                ActionButton {
                    text: question.acceptText
                    ink: Theme.problem
                    onClicked: {
                        question.close();
                        question.accepted();
                    }
                }
                ActionButton {
                    id: keep

                    text: question.rejectText
                    onClicked: question.close()
                }
            }
        }
    }
}
