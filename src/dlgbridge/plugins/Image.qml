import QtQuick 2.15 as Quick
import Arvela.Components 1.0 as Kit

// An image given in memory ("image", a QImage) or by address ("icon", shown instead when set).
Quick.Item {
    id: root

    property alias image: canvas.image
    property string icon

    signal doubleClicked()
    signal contextMenu()

    implicitWidth: icon === "" ? canvas.implicitWidth : picture.implicitWidth
    implicitHeight: icon === "" ? canvas.implicitHeight : picture.implicitHeight

    Kit.ImageCanvas {
        id: canvas
        anchors.fill: parent
        visible: root.icon === ""
    }

    Quick.Image {
        id: picture
        anchors.fill: parent
        visible: root.icon !== ""
        source: root.icon
        fillMode: Quick.Image.PreserveAspectFit
    }

    Quick.MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onDoubleClicked: root.doubleClicked()
        onClicked: if (mouse.button === Qt.RightButton) root.contextMenu()
    }
}
