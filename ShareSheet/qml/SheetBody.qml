// What a share is made of: previews, the text, the options.
import QtQuick
import Korvane.Sheet
import Korvane.Models

FocusScope {
    id: body

    required property var sheet

    Flickable {
        id: scroller

        function show(rectangle) {
            if (rectangle.y < contentY)
                contentY = Math.max(0, rectangle.y);
            else if (rectangle.y + rectangle.height > contentY + height)
                contentY = rectangle.y + rectangle.height - height;
        }

        anchors.fill: parent
        contentHeight: contents.height + 2 * Theme.margin
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        Column {
            id: contents

            anchors.horizontalCenter: parent.horizontalCenter
            y: Theme.margin
            width: Math.min(scroller.width, Theme.widestPage)
            spacing: Theme.margin

            Notice {
                x: Theme.margin
                width: parent.width - 2 * x
                visible: body.sheet.failure.length > 0
                text: body.sheet.failure
            }
            Notice {
                x: Theme.margin
                width: parent.width - 2 * x
                visible: body.sheet.attachments.problems.length > 0
                text: body.sheet.attachments.problems
                actionText: body.sheet.attachments.isPreparing || body.sheet.attachments.usableCount === 0 ? "" : qsTr("Leave them out")
                onActionClicked: body.sheet.attachments.leaveProblemsOut()
            }
            Previews {
                width: parent.width
                attachments: body.sheet.attachments
            }
            Column {
                width: parent.width

                TextBox {
                    id: words

                    width: parent.width
                    focus: true
                    placeholderText: body.sheet.isVideo ? qsTr("Title of the video") : qsTr("Title (optional)")
                    Accessible.description: room.visible ? room.Accessible.name : ""
                    onCursorRectangleChanged: if (activeFocus) {
                        const place = mapToItem(contents, cursorRectangle.x, cursorRectangle.y);
                        scroller.show(Qt.rect(0, contents.y + place.y, 1, cursorRectangle.height + Theme.spacing));
                    }

                    EditableText {
                        input: words
                        target: body.sheet
                        text: body.sheet.text
                        isEditing: body.sheet.isEditing
                    }
                }
                Rectangle {
                    width: parent.width
                    height: room.implicitHeight + Theme.spacing
                    color: Theme.surface
                    visible: room.visible

                    Text {
                        id: room

                        anchors.right: parent.right
                        anchors.rightMargin: Theme.margin
                        anchors.verticalCenter: parent.verticalCenter
                        visible: body.sheet.room >= 0
                        text: body.sheet.room
                        color: body.sheet.room === 0 ? Theme.problem : Theme.secondaryText
                        font.pixelSize: Theme.smallFontPixelSize
                        font.bold: body.sheet.room === 0
                        Accessible.role: Accessible.StaticText
                        Accessible.name: qsTr("Room for %n more letter(s)", "", body.sheet.room)
                    }
                }
            }
            Column {
                width: parent.width

                Repeater {
                    model: body.sheet.items.length

                    ListRow {
                        required property int index
                        readonly property var item: body.sheet.items[index]

                        width: contents.width
                        text: item ? item.title : ""
                        value: item ? item.value : ""
                        leadsOn: true
                        enabled: body.sheet.itemsAreEnabled
                        opacity: enabled ? 1 : 0.6
                        hasSeparator: index + 1 < body.sheet.items.length
                        onActiveFocusChanged: if (activeFocus) scroller.show(mapToItem(scroller.contentItem, 0, 0, width, height))
                        onClicked: {
                            body.sheet.commitText();
                            forceActiveFocus();
                            body.sheet.tapItem(index);
                        }
                    }
                }
            }
        }
    }
}
