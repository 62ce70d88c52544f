// A part of the sheet that is made once it is needed, and stays: what is always seen shows sooner.
import QtQuick

Loader {
    id: part

    required property url file // of an item with the property "sheet"
    required property var sheet
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
