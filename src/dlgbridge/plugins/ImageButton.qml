import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls
import Arvela.Components 1.0 as Kit

// A button that shows an image held in memory ("image", a QImage).
Controls.AbstractButton {
    id: button

    property alias image: canvas.image

    signal contextMenu()

    padding: 2
    contentItem: Kit.ImageCanvas {
        id: canvas
        opacity: button.enabled ? 1 : 0.4
    }
    background: Rectangle {
        color: button.down ? button.palette.mid : "transparent"
        border.width: button.visualFocus ? 1 : 0
        border.color: button.palette.highlight
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.RightButton
        onClicked: button.contextMenu()
    }
}
