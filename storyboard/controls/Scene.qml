import QtQuick
import QtQuick.Window
import Marrowvale.Toolkit

// The frame of most layouts: navigation bar, content, and the panel in the keyboard's place.
Layout {
    id: scene

    // Shown where the screen has no title of its own.
    property string title
    // Leads out of the stack, where there is nothing below.
    property BarButton homeButton: null
    property alias barItems: itemRow.data
    default property alias content: body.data
    readonly property bool canGoBack: navigationDepth > 1
    readonly property Item focusItem: Window.activeFocusItem
    // Had the keyboard before it fell to the scene: editing ended, or a button can't be pressed any more.
    property Item lastFocused: null

    function goBack() {
        if (!scene.settled)
            return;
        if (scene.canGoBack)
            scene.navigation.pop();
        else if (scene.homeButton !== null)
            scene.homeButton.press();
    }

    // From where the keyboard last was.
    function moveFocus(event, forward: bool) {
        event.accepted = scene.focusItem === scene && scene.lastFocused !== null;
        if (event.accepted)
            scene.lastFocused.nextItemInFocusChain(forward).forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason);
    }

    onFocusItemChanged: if (scene.activeFocus && scene.focusItem !== scene && !inputPanel.activeFocus)
        scene.lastFocused = scene.focusItem

    Keys.onTabPressed: event => scene.moveFocus(event, true)
    Keys.onBacktabPressed: event => scene.moveFocus(event, false)
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
        leadingItem: scene.homeButton
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

    // A stroke from the left edge goes back, as the button does. A tap there is one beside the fields.
    Item {
        width: 16
        height: parent.height

        TapHandler {
            onTapped: if (Modality.lets(scene))
                FirstResponder.current?.resignFirstResponder()
        }

        DragHandler {
            target: null
            yAxis.enabled: false
            enabled: scene.canGoBack || scene.homeButton !== null
            onActiveTranslationChanged: if (active && activeTranslation.x > 60 && Modality.lets(scene))
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
