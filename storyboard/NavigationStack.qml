import QtQuick
import QtQuick.Templates as T
import Marrowvale.Controls
import Marrowvale.Storyboard

// Shows the layouts of one navigation stack one above the other, and what the top one's screen presents.
FocusScope {
    id: root

    required property SceneStage stage
    required property NavigationStage stack
    // Popped layouts that may still be seen leaving.
    property var leaving: []

    function show(layout: Layout) {
        root.tidy();
        layout.navigation = root.stack.navigation;
        layout.navigationDepth = root.stack.navigation.depth;
        view.push(layout, view.depth === 0 ? T.StackView.Immediate : T.StackView.PushTransition);
        root.takeFocus();
    }

    // What stands behind another tab leaves the keyboard where it is.
    function takeFocus() {
        if (root.visible && view.currentItem !== null)
            view.currentItem.forceActiveFocus();
    }

    function remove(layout: Layout) {
        FirstResponder.current = null;
        root.leaving.push(layout);
        tidying.start();
    }

    // One unwinding pops several layouts: only the top one is seen to go, and all stay until it is gone.
    function tidy() {
        const last = view.find(item => root.leaving.indexOf(item) < 0);
        if (last !== null && last !== view.currentItem) {
            view.pop(last);
            root.takeFocus();
        }
        if (!view.busy)
            root.releaseLeaving();
    }

    function releaseLeaving() {
        const gone = root.leaving;
        root.leaving = [];
        for (let i = 0; i < gone.length; ++i)
            root.stack.release(gone[i]);
    }

    onVisibleChanged: takeFocus()

    Timer {
        id: tidying

        interval: 0
        onTriggered: root.tidy()
    }

    Connections {
        target: root.stack

        function onPushed(item) {
            root.show(item);
        }

        function onPopped(item) {
            root.remove(item);
        }
    }

    T.StackView {
        id: view

        anchors.fill: parent
        onBusyChanged: tidying.start()

        pushEnter: SlideTransition {
            from: view.width
        }
        pushExit: SlideTransition {
            to: -view.width / 4
        }
        popEnter: SlideTransition {
            from: -view.width / 4
        }
        popExit: SlideTransition {
            to: view.width
        }
    }

    PresentationHost {
        stage: root.stage
        presenter: root.stack.navigation.topViewController
        onFinished: root.takeFocus()
    }
}
