pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Marrowvale.Controls
import Marrowvale.Services
import Marrowvale.Storyboard
import Marrowvale.Toolkit

// Shows what a screen presents, and what that presents in turn. What the desktop shows by itself isn't shown here.
Item {
    id: host

    required property SceneStage stage
    required property UIViewController presenter
    readonly property UIViewController presented: presenter !== null ? presenter.presentedViewController : null
    property T.Popup shown: null

    signal finished

    function follow() {
        if (host.shown !== null)
            host.shown.close();
        host.shown = null;
        const kind = host.stage.presentation(host.presented);
        if (kind === "alert")
            host.shown = alert.createObject(host, {
                alert: host.presented
            });
        else if (kind === "activity")
            host.shown = share.createObject(host, {
                activities: host.presented
            });
    }

    onPresentedChanged: follow()

    Component {
        id: alert

        Alert {
            onClosed: {
                host.finished();
                destroy();
            }
        }
    }

    Component {
        id: share

        ShareSheet {
            onClosed: {
                host.finished();
                destroy();
            }
        }
    }

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

        Connections {
            target: host

            function onPresentedChanged() {
                next.follow();
            }
        }
    }
}
