import QtQuick 2.15
import QtQuick.Layouts 1.15
import Arvela.Components 1.0

// The panel the MARK command shows beside the command line while it runs.
ContextDialogAV {
    title: "Mark"
    contextController: controller
    width: 290
    height: 146

    component ShapeButton: Button {
        property string shape
        objectName: shape.toLowerCase()
        text: shape
        Layout.fillWidth: true
        highlighted: controller.shape === shape
        onClicked: controller.chooseShape(shape)
    }

    ColumnLayout {
        width: parent.width
        spacing: 4

        RowLayout {
            Layout.fillWidth: true
            spacing: 4
            ShapeButton { shape: "Cross" }
            ShapeButton { shape: "Circle" }
            ShapeButton { shape: "Square" }
        }
        Button {
            objectName: "done"
            text: "Done"
            Layout.fillWidth: true
            onClicked: controller.done()
        }
    }
}
