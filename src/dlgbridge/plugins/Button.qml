import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls

// A push button; a right click asks for a context menu.
Controls.Button {
    id: button

    signal contextMenu()

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.RightButton
        onClicked: button.contextMenu()
    }
}
