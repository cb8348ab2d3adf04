import QtQuick 2.15
import QtQuick.Layouts 1.15
import Arvela.Components 1.0

// Two combos of each CAD kind, and a line weight combo, in one dialog.
DialogAV {
    title: "Layer properties"
    width: 460
    height: 640

    GridLayout {
        columns: 2
        width: parent.width
        Label { text: "Color" }
        ColorComboBox { objectName: "color"; Layout.fillWidth: true }
        Label { text: "Plot color" }
        ColorComboBox { objectName: "plotColor"; Layout.fillWidth: true }
        Label { text: "Line type" }
        LineTypeComboBox { objectName: "lineType"; Layout.fillWidth: true }
        Label { text: "Plot line type" }
        LineTypeComboBox { objectName: "plotLineType"; Layout.fillWidth: true }
        Label { text: "Line weight" }
        LineWeightComboBox { objectName: "lineWeight"; Layout.fillWidth: true }
    }
}
