import QtQuick
import Marrowvale.Controls
import Marrowvale.Storyboard

// Shows the layouts of one navigation stack one above the other, and what the top one's screen presents.
FocusScope {
    id: root

    required property SceneStage stage
    required property NavigationStage stack
    // From the bottom to the top.
    property var layouts: []
    property Layout shown: null
    // Popped layouts that may still be seen leaving.
    property var leaving: []
    readonly property alias busy: slide.running

    function push(layout: Layout) {
        root.tidy();
        layout.navigation = root.stack.navigation;
        layout.navigationDepth = root.stack.navigation.depth;
        layout.parent = view;
        root.layouts.push(layout);
        root.turnTo(layout, true);
    }

    function remove(layout: Layout) {
        FirstResponder.current = null;
        root.layouts.splice(root.layouts.indexOf(layout), 1);
        root.leaving.push(layout);
        tidying.start();
    }

    // One unwinding pops several layouts: only the top one is seen to go, and all stay until it is gone.
    function tidy() {
        if (root.leaving.indexOf(root.shown) >= 0)
            root.turnTo(root.layouts[root.layouts.length - 1], false);
    }

    function turnTo(layout: Layout, inwards: bool) {
        slide.complete();
        slide.going = root.shown;
        slide.entering = layout;
        slide.inwards = inwards;
        root.shown = layout;
        layout.visible = true;
        if (slide.going !== null) {
            slide.going.settled = false;
            slide.begin();
        } else {
            root.settle();
        }
        root.takeFocus();
    }

    function settle() {
        if (slide.going !== null)
            slide.going.visible = false;
        slide.going = null;
        if (root.leaving.indexOf(root.shown) >= 0)
            return; // popped while it came
        root.shown.settled = true;
        const gone = root.leaving;
        root.leaving = [];
        for (let i = 0; i < gone.length; ++i)
            root.stack.release(gone[i]);
    }

    function goBack() {
        (root.shown as Scene)?.goBack();
    }

    // What stands behind another tab leaves the keyboard where it is.
    function takeFocus() {
        if (root.visible && root.shown !== null)
            root.shown.forceActiveFocus();
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
            root.push(item);
        }

        function onPopped(item) {
            root.remove(item);
        }
    }

    Slide {
        id: slide

        width: view.width
        onStopped: root.settle()
    }

    FocusScope {
        id: view

        anchors.fill: parent
        focus: true
    }

    // A second tap would meet what just comes in.
    MouseArea {
        anchors.fill: parent
        enabled: slide.running
    }

    PresentationHost {
        stage: root.stage
        presenter: root.stack.navigation.topViewController
        onFinished: root.takeFocus()
    }
}
