// Colours and sizes of every page: light or dark after the system's palette, large or small after its font.
pragma Singleton

import QtQuick

QtObject {
    readonly property bool isDark: _palette.window.hslLightness < 0.5

    readonly property color page: isDark ? "#1c1c1e" : "#f2f2f5"
    readonly property color surface: isDark ? "#2c2c2f" : "#ffffff"
    readonly property color pressed: isDark ? "#3d3d42" : "#e2e2e8"
    readonly property color text: isDark ? "#f4f4f6" : "#1b1b1f"
    readonly property color secondaryText: isDark ? "#b4b4bc" : "#5b5b65"
    readonly property color separator: isDark ? "#48484e" : "#d3d3da"
    readonly property color accent: isDark ? "#7ab4ff" : "#0b57c2"
    readonly property color accentText: isDark ? "#10213a" : "#ffffff"
    readonly property color problem: isDark ? "#ff9a8f" : "#b3261e"
    readonly property color problemSurface: isDark ? "#4a2a28" : "#fdeceb"
    readonly property color shade: isDark ? "#b3000000" : "#80000000" // over what cannot be used just now
    readonly property color focus: accent

    readonly property real lineHeight: Math.ceil(_metrics.height)
    readonly property real fontPixelSize: _metrics.font.pixelSize > 0 ? _metrics.font.pixelSize : Math.round(lineHeight * 0.84)
    // For text fields, which do not take the application's font by themselves.
    readonly property string fontFamily: _metrics.font.family
    readonly property real fontPointSize: _metrics.font.pointSize > 0 ? _metrics.font.pointSize : fontPixelSize * 0.75
    readonly property real smallFontPixelSize: Math.round(fontPixelSize * 0.88)
    readonly property real largeFontPixelSize: Math.round(fontPixelSize * 1.15)
    readonly property real spacing: Math.round(Math.min(12, lineHeight * 0.55))
    readonly property real margin: Math.round(Math.min(20, lineHeight * 0.9))
    readonly property real touchHeight: Math.max(44, Math.round(lineHeight * 1.7)) // of whatever is tapped
    readonly property real radius: 10
    readonly property real focusWidth: 2
    readonly property int slideDuration: 220 // milliseconds
    readonly property real widestPage: Math.max(640, lineHeight * 34)

    readonly property SystemPalette _palette: SystemPalette {}
    // What shows first does without names of "Qt": the engine would look through all that "Qt" has first.
    readonly property int tabFocus: 1 // Qt.TabFocus
    readonly property FontMetrics _metrics: FontMetrics {}
}
