// A part of the sheet that is made once it is needed, and stays: what is always seen shows sooner.
import QtQuick
import Korvane.Sheet

Loader {
    id: part

    required property url file // of an item with the property "sheet"
    required property SheetModel sheet
    required property bool isNeeded

    function make() {
        if (isNeeded && status === Loader.Null)
            setSource(file, {
                "sheet": sheet
            });
    }

    onIsNeededChanged: make()
    Component.onCompleted: make()
}
