import QtQuick 2.15

// A button drawn as an outline, for secondary actions.
Button {
    id: button

    flat: true
    background: Rectangle {
        implicitWidth: 100
        implicitHeight: 40
        radius: 2
        color: button.down ? button.palette.midlight : "transparent"
        border.width: 1
        border.color: button.palette.buttonText
    }
}
