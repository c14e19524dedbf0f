import QtQuick

// What stands in an input panel.
Item {
    // The field passes on a key that it has no use for; accepted if it turns something here.
    function turn(event) {
    }
}
