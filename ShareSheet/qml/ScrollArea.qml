// What is higher than the window. What gets the keyboard is brought into sight.
import QtQuick
import QtQuick.Window
import Korvane.Sheet

Flickable {
    id: area

    readonly property Item focused: Window.activeFocusItem

    // A rectangle of the contents' own coordinates; its top, where it is higher than what is seen.
    function show(rectangle) {
        const lowest = contentHeight - height;
        const needed = rectangle.y + rectangle.height + Theme.margin - height;
        contentY = Math.max(0, Math.min(Math.max(contentY, needed), rectangle.y - Theme.margin, lowest));
    }

    boundsBehavior: Flickable.StopAtBounds
    clip: true
    onFocusedChanged: {
        let item = focused;
        while (item && item !== contentItem)
            item = item.parent;
        if (item)
            show(focused.mapToItem(contentItem, 0, 0, focused.width, focused.height));
    }
}
