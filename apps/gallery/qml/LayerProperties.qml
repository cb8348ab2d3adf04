import QtQuick 2.15
import QtQuick.Layouts 1.15
import Arvela.Components 1.0

// The properties of one layer, as the application would ship them: the dialog
// code in C++ knows its controls only by object name.
DialogAV {
    title: "Layer properties"
    width: 440
    height: 460

    GridLayout {
        columns: 2
        width: parent.width
        columnSpacing: 12
        rowSpacing: 10

        Label { text: "Layer" }
        Label { objectName: "layerName"; font.bold: true }
        Label { text: "Color" }
        ColorComboBox { objectName: "color"; Layout.fillWidth: true }
        Label { text: "Viewport color" }
        ColorComboBox { objectName: "viewportColor"; Layout.fillWidth: true }
        Label { text: "Lineweight" }
        LineWeightComboBox { objectName: "lineWeight"; Layout.fillWidth: true }
        Label { text: "Linetype" }
        LineTypeComboBox { objectName: "lineType"; Layout.fillWidth: true }
    }
}
