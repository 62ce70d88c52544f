// Accounts, the application's keys, and how uploads go.
import QtQuick
import QtQuick.Templates as T
import Korvane.Sheet

T.Page {
    id: page

    required property var settings // a Settings object
    property bool isVimeoFirst: false

    title: qsTr("Settings")
    background: Rectangle {
        color: Theme.page
    }
    Keys.onEscapePressed: page.T.ApplicationWindow.window.closePage()

    PageHeader {
        id: header

        width: parent.width
        title: page.title
        leadingText: qsTr("Close")
        onLeadingClicked: page.T.ApplicationWindow.window.closePage()
    }
    ScrollArea {
        id: scroll

        anchors.top: header.bottom
        anchors.bottom: parent.bottom
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, Theme.widestPage)
        contentHeight: contents.height + Theme.margin

        Column {
            id: contents

            width: parent.width

            Repeater {
                model: page.isVimeoFirst ? [page.settings.vimeo, page.settings.flickr] : [page.settings.flickr, page.settings.vimeo]

                ServiceSettings {
                    required property var modelData

                    width: contents.width
                    access: modelData
                    onAsked: (words, action) => {
                        question.action = action;
                        question.message = words;
                    }
                }
            }
            SectionHeader {
                width: parent.width
                text: qsTr("Uploads")
            }
            NumberRow {
                width: parent.width
                text: qsTr("Photos at a time")
                choices: page.settings.flickrParallelChoices
                value: page.settings.flickrParallelUploads
                onPicked: number => page.settings.flickrParallelUploads = number
            }
            NumberRow {
                width: parent.width
                text: qsTr("Videos at a time")
                choices: page.settings.vimeoParallelChoices
                value: page.settings.vimeoParallelUploads
                onPicked: number => page.settings.vimeoParallelUploads = number
            }
            SwitchRow {
                width: parent.width
                text: qsTr("Upload over the cellular network")
                isOn: page.settings.uploadsOverCellular
                onToggled: page.settings.uploadsOverCellular = !page.settings.uploadsOverCellular
            }
            NumberRow {
                width: parent.width
                text: qsTr("Largest edge of newly encoded pictures")
                choices: [0, 1024, 2048, 4096, 8192]
                value: page.settings.displayImageMaxPixels
                wordsFor: number => number === 0 ? qsTr("As it is") : qsTr("%L1 pixels").arg(number)
                onPicked: number => page.settings.displayImageMaxPixels = number
            }
            Note {
                width: parent.width
                text: qsTr("JPEG, PNG and GIF files always go out as they are. Other pictures, and those sent without metadata, are newly encoded.")
            }
            Notice {
                text: page.settings.problem
            }
        }
    }
    ScrollMark {
        view: scroll
    }
    Dialog {
        id: question

        property var action: null

        visible: message.length > 0
        isDangerous: true
        acceptText: qsTr("Remove")
        rejectText: qsTr("Keep")
        onRejected: message = ""
        onAccepted: {
            message = "";
            action();
        }
    }
}
