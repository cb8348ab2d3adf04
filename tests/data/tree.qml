import QtQuick 2.15
import Arvela.Components 1.0

Item {
    width: 300
    height: 400

    TreeViewAV { objectName: "layers"; anchors.fill: parent }
}
