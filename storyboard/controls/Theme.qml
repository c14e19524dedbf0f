pragma Singleton

import QtQuick

// Sizes in device-independent pixels. Surfaces whose colour screens fix stay light in both styles: what stands
// on them uses `paper`.
QtObject {
    id: theme

    property bool dark: false
    readonly property Shades shades: dark ? night : paper

    readonly property Shades paper: Shades {
        window: "#f3f6f7"
        surface: "#ffffff"
        field: "#ffffff"
        text: "#14232b"
        secondary: "#52646f"
        divider: "#cfd9de"
        accent: "#0a736e"
        accentText: "#ffffff"
        danger: "#c4161c"
    }
    readonly property Shades night: Shades {
        window: "#26323a"
        surface: "#33424c"
        field: "#1e282f"
        text: "#eef4f6"
        secondary: "#a9bbc5"
        divider: "#465762"
        accent: "#56d0c6"
        accentText: "#062522"
        danger: "#ff8a80"
    }

    readonly property string fontFamily: "Liberation Sans"
    readonly property int caption: 12
    readonly property int small: 13
    readonly property int body: 16
    readonly property int headline: 17
    readonly property int display: 34

    readonly property int columnWidth: 720
    readonly property int margin: 16
    readonly property int gap: 12
    readonly property int target: 44
    readonly property int barHeight: 52

    readonly property int brief: 150
    readonly property int slide: 280
}
