import QtQuick
import QtQuick.Templates as T
import Marrowvale.Controls
import Marrowvale.Storyboard

// The window's root: shows the layouts of the stage one above the other.
Rectangle {
    id: root

    required property SceneStage stage
    // Popped layouts that may still be seen leaving.
    property var leaving: []

    function show(scene: Scene) {
        root.tidy();
        scene.navigation = root.stage.navigation;
        scene.navigationDepth = root.stage.navigation.depth;
        stack.push(scene, stack.depth === 0 ? T.StackView.Immediate : T.StackView.PushTransition);
        scene.forceActiveFocus();
    }

    function remove(scene: Scene) {
        FirstResponder.current = null;
        root.leaving.push(scene);
        tidying.start();
    }

    // One unwinding pops several layouts: only the top one is seen to go, and all stay until it is gone.
    function tidy() {
        const last = stack.find(item => root.leaving.indexOf(item) < 0);
        if (last !== null && last !== stack.currentItem) {
            stack.pop(last);
            last.forceActiveFocus();
        }
        if (!stack.busy)
            root.releaseLeaving();
    }

    function releaseLeaving() {
        const gone = root.leaving;
        root.leaving = [];
        for (let i = 0; i < gone.length; ++i)
            root.stage.release(gone[i]);
    }

    color: Theme.shades.window

    Binding {
        target: Theme
        property: "dark"
        value: root.stage.interfaceStyle.dark
    }

    Timer {
        id: tidying

        interval: 0
        onTriggered: root.tidy()
    }

    Connections {
        target: root.stage

        function onPushed(item) {
            root.show(item);
        }

        function onPopped(item) {
            root.remove(item);
        }
    }

    T.StackView {
        id: stack

        anchors.fill: parent
        onBusyChanged: tidying.start()

        pushEnter: SlideTransition {
            from: stack.width
        }
        pushExit: SlideTransition {
            to: -stack.width / 4
        }
        popEnter: SlideTransition {
            from: -stack.width / 4
        }
        popExit: SlideTransition {
            to: stack.width
        }
    }

    PresentationHost {
        stage: root.stage
        presenter: root.stage.navigation.topViewController
        onFinished: stack.currentItem.forceActiveFocus()
    }
}
