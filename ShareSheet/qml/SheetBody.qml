// What a share is made of: previews, the text, the options.
import QtQuick
import Korvane.Sheet

FocusScope {
    id: body

    required property SheetModel sheet

    Flickable {
        id: scroller

        function show(top, size) {
            if (top < contentY)
                contentY = Math.max(0, top);
            else if (top + size > contentY + height)
                contentY = top + size - height;
        }

        anchors.fill: parent
        contentHeight: contents.height + 2 * Theme.margin
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        Connections { // what went wrong stands at the top
            target: body.sheet

            function onFailureChanged() {
                if (body.sheet.failure.length > 0)
                    scroller.contentY = 0;
            }
        }
        Column {
            id: contents

            anchors.horizontalCenter: parent.horizontalCenter
            y: Theme.margin
            width: Math.min(scroller.width, Theme.widestPage)
            spacing: Theme.margin

            LatePart {
                width: parent.width
                visible: isNeeded
                file: "SheetNotices.qml"
                sheet: body.sheet
                isNeeded: body.sheet.failure.length > 0 || body.sheet.attachments.problems.length > 0
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
                    placeholderText: body.sheet.isTextOptional ? qsTr("Title (optional)") : qsTr("Title")
                    Accessible.description: body.sheet.isRoomShort ? room.Accessible.name : ""
                    onCursorRectangleChanged: if (activeFocus) {
                        const place = mapToItem(contents, cursorRectangle.x, cursorRectangle.y);
                        scroller.show(contents.y + place.y, cursorRectangle.height + Theme.spacing);
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
                    visible: body.sheet.isRoomShort

                    Text {
                        id: room

                        textFormat: Text.PlainText
                        anchors.right: parent.right
                        anchors.rightMargin: Theme.margin
                        anchors.verticalCenter: parent.verticalCenter
                        readonly property bool isProblem: body.sheet.wasTooLong || body.sheet.room === 0

                        text: body.sheet.wasTooLong ? qsTr("That does not fit") : body.sheet.room === 0 ? qsTr("Full") : qsTr("Almost full")
                        color: isProblem ? Theme.problem : Theme.secondaryText
                        font.pixelSize: Theme.smallFontPixelSize
                        font.bold: isProblem
                        Accessible.role: Accessible.StaticText
                        Accessible.name: text + ", " + qsTr("room for %n more byte(s)", "", body.sheet.room)
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
                        onActiveFocusChanged: if (activeFocus) scroller.show(mapToItem(scroller.contentItem, 0, 0).y, height)
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
