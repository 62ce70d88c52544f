import QtQuick.Controls

ApplicationWindow {
    width: 640
    height: 720
    visible: true
}
