import QtQuick
import Marrowvale.Browse
import Marrowvale.Controls
import Marrowvale.Toolkit

Scene {
    id: root

    required property DefaultsViewController screen

    component Caption: Label {
        width: parent.width
        leftPadding: Theme.margin
        rightPadding: Theme.margin
        wrapMode: Text.Wrap
        color: Theme.shades.secondary
        font.pixelSize: Theme.small
    }

    controller: screen
    title: "Settings"

    Page {
        anchors.fill: parent
        columnWidth: 560
        spacing: 8

        ground: TapArea {
            anchors.fill: parent
            action: "dismissKeyboard"
        }

        Card {
            width: parent.width

            SwitchRow {
                width: parent.width
                label: "Use Default Date"
                toggle: root.screen.DefaultDateSwitch
                toggleAction: "SwitchChanged"
            }

            Fold {
                width: parent.width
                outlet: root.screen.DefaultDateLabel

                CardDivider {}

                Item {
                    width: parent.width
                    height: 68

                    OutletLabel {
                        anchors.left: parent.left
                        anchors.leftMargin: Theme.margin
                        anchors.verticalCenter: parent.verticalCenter
                        outlet: root.screen.DefaultDateLabel
                        text: outlet.text.length > 0 ? outlet.text : "Default Date"
                    }

                    Field {
                        anchors.right: parent.right
                        anchors.rightMargin: Theme.margin
                        anchors.verticalCenter: parent.verticalCenter
                        width: Math.min(parent.width * 0.55, 220)
                        captionHidden: true
                        label: "Default Date"
                        outlet: root.screen.DefaultDateTextField
                        beginAction: "DateEntered"
                    }
                }
            }
        }

        Item {
            width: 1
            height: Theme.margin
        }

        Caption {
            property UILabel outlet: root.screen.SelectDPLabel

            visible: !outlet.hidden
            text: outlet.text.length > 0 ? outlet.text : "Select Date Picker"
            font.bold: true
        }

        Card {
            width: parent.width

            SwitchRow {
                width: parent.width
                label: "Use Date Wheel"
                caption: root.screen.UseDateWheelLabel
                toggle: root.screen.DateWheelSwitch
                toggleAction: "DateWheelSwitch"
            }

            CardDivider {
                visible: !root.screen.DateWheelSwitch.hidden
            }

            SwitchRow {
                width: parent.width
                label: "Use Inline Date"
                caption: root.screen.UseInlineDateLabel
                toggle: root.screen.DateInlineSwitch
                toggleAction: "DateInlineSwitch"
            }

            CardDivider {
                visible: !root.screen.DateCompactSwitch.hidden
            }

            SwitchRow {
                width: parent.width
                label: "Use Compact Date"
                caption: root.screen.UseCompactDateLabel
                toggle: root.screen.DateCompactSwitch
                toggleAction: "DateCompactSwitch"
            }
        }

        Caption {
            text: "How you pick the date on which you watched a movie."
        }
    }
}
