import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls
import QtQuick.Layouts 1.15
import Arvela.Components 1.0

// A property panel as the application shows one beside its drawing: what is
// selected, then its properties by category.
Rectangle {
    width: 420
    height: 900
    color: "#f6f6f6"

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 8

        Controls.Label {
            text: "Wall (1 selected)"
            font.pixelSize: 15
        }
        PropertyPanel {
            objectName: "panel"
            model: properties
            Layout.fillWidth: true
            Layout.fillHeight: true
        }
    }
}
