// The window. Pages lie on one another in it, the first at the bottom.
import QtQuick
import QtQuick.Templates as T
import Korvane.Sheet

T.ApplicationWindow {
    id: window

    required property url firstPage
    property var firstPageProperties: ({})
    property bool isMirrored: false // from right to left

    // Shows a page over what is there; the page closes itself with closePage().
    function openPage(page, properties) {
        pages.push(page, properties);
    }
    function closePage() {
        if (pages.depth > 1)
            pages.pop();
        else
            window.close();
    }

    width: 640
    height: 720
    minimumWidth: 320
    minimumHeight: 400
    visible: true
    title: pages.currentItem && pages.currentItem.title !== undefined ? pages.currentItem.title : qsTr("Korvane")
    color: Theme.page
    // Closing the window is what the page does with Escape.
    onClosing: close => {
        const page = pages.get(0);
        if (page && page.closeWindow !== undefined) {
            close.accepted = false;
            page.closeWindow();
        }
    }
    LayoutMirroring.enabled: isMirrored
    LayoutMirroring.childrenInherit: true

    Component.onCompleted: pages.push(firstPage, firstPageProperties, T.StackView.Immediate)

    // A page that has no way of its own back is closed.
    function goBack() {
        if (pages.currentItem && pages.currentItem.goBack !== undefined)
            pages.currentItem.goBack();
        else
            closePage();
    }

    T.StackView {
        id: pages

        anchors.fill: parent
        focus: true
        onCurrentItemChanged: if (currentItem) currentItem.forceActiveFocus()

        Shortcut { // in here, so that a question over the page comes first
            sequences: ["Back", "Alt+Left"]
            onActivated: window.goBack()
        }

        pushEnter: Transition {
            NumberAnimation {
                property: "x"
                from: pages.width * (pages.mirrored ? -1 : 1)
                to: 0
                duration: Theme.slideDuration
                easing.type: Easing.OutCubic
            }
        }
        pushExit: Transition {
            PauseAnimation {
                duration: Theme.slideDuration
            }
        }
        popEnter: Transition {
            PauseAnimation {
                duration: 1
            }
        }
        popExit: Transition {
            NumberAnimation {
                property: "x"
                from: 0
                to: pages.width * (pages.mirrored ? -1 : 1)
                duration: Theme.slideDuration
                easing.type: Easing.InCubic
            }
        }
    }
    EdgePull {
        height: parent.height
        z: 1
        visible: pages.depth > 1
        isMirrored: pages.mirrored
        onPulledAway: {
            pulled = 0;
            window.closePage();
        }
    }
}
