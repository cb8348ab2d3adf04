import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls

// A label; it reports double clicks and asks for a context menu on a right click.
Controls.Label {
    id: label

    signal doubleClicked()
    signal contextMenu()

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onDoubleClicked: label.doubleClicked()
        onClicked: if (mouse.button === Qt.RightButton) label.contextMenu()
    }
}
