// A small picture of a photo or video.
import QtQuick
import QtQuick.Window
import Korvane.Sheet

Rectangle {
    id: tile

    property alias source: picture.source // as ThumbnailProvider gives it
    readonly property bool isLoaded: picture.status === Image.Ready
    readonly property bool isShown: isLoaded && picture.implicitWidth > 1 // a file that shows nothing gives a single dot
    property alias fillMode: picture.fillMode
    property bool isVideo: false
    property bool isUnusable: false
    property int edge: 96 // of the square that the picture fills, in the page's units

    implicitWidth: edge
    implicitHeight: edge
    radius: 6
    color: Theme.pressed
    clip: true

    Image {
        id: picture

        readonly property int pixels: Math.ceil(tile.edge * Screen.devicePixelRatio * 1.5)

        anchors.fill: parent
        asynchronous: true
        cache: false // the provider keeps them
        fillMode: Image.PreserveAspectCrop
        sourceSize.width: pixels
        sourceSize.height: pixels
    }
    Loader {
        anchors.centerIn: parent
        active: tile.isUnusable || tile.isVideo
        sourceComponent: Text {
            textFormat: Text.PlainText
            text: tile.isUnusable ? "!" : "▶"
            color: tile.isUnusable ? Theme.problem : "white"
            style: tile.isUnusable ? Text.Normal : Text.Outline
            styleColor: "#80000000"
            font.pixelSize: Theme.lineHeight * 1.6
            font.bold: true
            Accessible.ignored: true
        }
    }
}
