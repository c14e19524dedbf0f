import QtQuick
import Marrowvale.Storyboard
import Marrowvale.Toolkit

// Shows what a screen presents, and what that presents in turn. What the desktop shows by itself isn't shown here.
Item {
    id: host

    required property SceneStage stage
    required property UIViewController presenter
    readonly property UIViewController presented: presenter !== null ? presenter.presentedViewController : null
    property var shown: null
    property bool isPresenting: false

    signal finished

    function follow() {
        const wasShown = host.shown;
        if (wasShown !== null)
            wasShown.close();
        host.shown = null;
        // Nothing of its own to close: the keyboard comes back as soon as what stood above is gone, too.
        if (wasShown === null && host.isPresenting && host.presented === null)
            finishing.start();
        host.isPresenting = host.presented !== null;
        const kind = host.stage.presentation(host.presented);
        if (kind === "alert")
            host.show("Alert.qml", {
                alert: host.presented
            });
        else if (kind === "activity")
            host.show("ShareSheet.qml", {
                activities: host.presented
            });
        else if (kind === "camera")
            host.show("CameraSheet.qml", {
                picker: host.presented
            });
    }

    Timer {
        id: finishing

        interval: 0
        onTriggered: host.finished()
    }

    // By address: what no screen has presented yet need not be loaded.
    function show(layout: string, values: var) {
        host.shown = Qt.createComponent(layout).createObject(host, values);
        host.shown.closed.connect(host.finished);
    }

    onPresentedChanged: follow()

    // By address, since a type can't hold itself.
    Loader {
        id: next

        function follow() {
            if (host.presented === null)
                next.source = "";
            else
                next.setSource("PresentationHost.qml", {
                    stage: host.stage,
                    presenter: host.presented
                });
        }

        onLoaded: (item as PresentationHost).finished.connect(host.finished)

        Connections {
            target: host

            function onPresentedChanged() {
                next.follow();
            }
        }
    }
}
