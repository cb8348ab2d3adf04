import QtQuick 2.15

// A button without a frame until it is hovered or pressed.
Button {
    flat: true
}
