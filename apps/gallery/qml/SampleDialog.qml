import QtQuick 2.15
import QtQuick.Layouts 1.15
import Arvela.Components 1.0

// A print dialog as the application would ship it: the dialog code in C++
// knows its controls only by object name.
DialogAV {
    title: "Plot drawing"
    width: 460
    height: 330
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
