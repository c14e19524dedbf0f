import QtQuick
import QtQuick.Templates as T
import Marrowvale.Toolkit

// The frame of every layout: navigation bar, content, and the panel in the keyboard's place. Made before its
// screen is on the stack: the window's root layout sets `navigation` and `navigationDepth`.
FocusScope {
    id: scene

    required property UIViewController controller
    // Shown where the screen has no title of its own.
    property string title
    property UINavigationController navigation: null
    property int navigationDepth: 1
    property alias barItems: itemRow.data
    default property alias content: body.data
    readonly property bool canGoBack: navigationDepth > 1

    function goBack() {
        if (scene.canGoBack && scene.T.StackView.status === T.StackView.Active)
            scene.navigation.pop();
    }

    Keys.onEscapePressed: {
        if (FirstResponder.current !== null)
            FirstResponder.current.resignFirstResponder();
        else
            scene.goBack();
    }
    Keys.onBackPressed: goBack()
    Keys.onPressed: event => inputPanel.turn(event)

    Shortcut {
        sequences: ["Alt+Left", "Back"]
        enabled: scene.activeFocus
        onActivated: scene.goBack()
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.shades.window
    }

    NavigationBar {
        id: bar

        property real openness: scene.navigation !== null && scene.navigation.navigationBarHidden ? 0 : 1

        z: 1
        width: parent.width
        y: (openness - 1) * height
        visible: openness > 0
        title: scene.controller.title.length > 0 ? scene.controller.title : scene.title
        canGoBack: scene.canGoBack
        onBackRequested: scene.goBack()

        Row {
            id: itemRow
        }

        BarButton {
            visible: outlet !== null
            outlet: scene.controller.rightBarButtonItem
            onTriggered: scene.controller.rightBarButtonItem.tap()
        }

        Behavior on openness {
            NumberAnimation {
                duration: Theme.slide
                easing.type: Easing.OutCubic
            }
        }
    }

    Item {
        id: body

        anchors.top: bar.bottom
        anchors.bottom: inputPanel.top
        width: parent.width
        clip: inputPanel.height > 0
    }

    // A stroke from the left edge goes back, as the button does.
    Item {
        width: 16
        height: parent.height

        DragHandler {
            target: null
            yAxis.enabled: false
            enabled: scene.canGoBack
            onActiveTranslationChanged: if (active && activeTranslation.x > 60)
                scene.goBack()
        }
    }

    InputPanel {
        id: inputPanel

        anchors.bottom: parent.bottom
        width: parent.width
        field: FirstResponder.current as UITextField
    }
}
