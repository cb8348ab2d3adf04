import QtQuick 2.15

// A round button, for a short label or an icon.
Button {
    id: button

    background: Rectangle {
        implicitWidth: 40
        implicitHeight: 40
        radius: height / 2
        color: button.down ? button.palette.mid : button.palette.button
    }
}
