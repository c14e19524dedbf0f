import QtQuick
import Marrowvale.Controls

// One layout comes in from the side while another goes: over it on the way into the stack, from below it on the
// way back.
ParallelAnimation {
    id: slide

    property Layout entering: null
    property Layout going: null
    property bool inwards: true
    property real width: 0

    function begin() {
        slide.entering.z = slide.inwards ? 1 : 0;
        slide.going.z = slide.inwards ? 0 : 1;
        slide.start();
    }

    component Movement: NumberAnimation {
        property: "x"
        duration: Theme.slide
        easing.type: Easing.OutCubic
    }

    Movement {
        target: slide.entering
        from: slide.inwards ? slide.width : -slide.width / 4
        to: 0
    }

    Movement {
        target: slide.going
        from: 0
        to: slide.inwards ? -slide.width / 4 : slide.width
    }
}
