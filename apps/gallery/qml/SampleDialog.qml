import QtQuick 2.15
import QtQuick.Layouts 1.15
import Arvela.Components 1.0

// A print dialog as the application would ship it: the dialog code in C++
// knows its controls only by object name.
DialogAV {
    title: "Plot drawing"
    width: 460
    height: 450
    showApply: true

    ColumnLayout {
        width: parent.width
        spacing: 10

        Label { objectName: "status"; text: "Ready"; font.bold: true }

        Panel {
            objectName: "options"
            Layout.fillWidth: true
            backgroundColor: "#e4e8ee"

            GridLayout {
                columns: 2
                Label { text: "Title" }
                TextField { objectName: "plotTitle"; Layout.fillWidth: true; placeholderText: "Title block text" }
                Label { text: "Plotter" }
                ComboBox { objectName: "plotter"; Layout.fillWidth: true }
                Label { text: "Paper" }
                ComboBox { objectName: "paper"; editable: true; model: ["A4", "A3", "Letter"] }
                Label { text: "Copies" }
                SpinBox { objectName: "copies"; from: 1; to: 99; value: 1 }
                Label { text: "Plot style" }
                ToggleButton { objectName: "style"; model: ["Colour", "Monochrome", "Greyscale"] }
            }
        }

        RowLayout {
            objectName: "PANEL_progress"
            Button { objectName: "preview"; text: "Preview" }
            ProgressBar { objectName: "progress"; Layout.fillWidth: true }
        }

        CheckBox { objectName: "agree"; text: "I have checked the layout" }
    }
}
