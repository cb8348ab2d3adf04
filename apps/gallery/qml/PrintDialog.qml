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

        TabBar {
            objectName: "book"
            Layout.fillWidth: true
            pages: [drawingPage, plotterPage, pensPage]
        }

        // The pages: the tab bar shows the current one only.
        Panel {
            id: drawingPage
            objectName: "drawingPage"
            property string title: "Drawing"
            Layout.fillWidth: true
            backgroundColor: "#e4e8ee"

            GridLayout {
                columns: 2
                width: parent.width
                Label { text: "Title" }
                TextField { objectName: "plotTitle"; Layout.fillWidth: true; placeholderText: "Title block text" }
                Label { text: "Copies" }
                SpinBox { objectName: "copies"; from: 1; to: 99 }
            }
        }

        Panel {
            id: plotterPage
            objectName: "plotterPage"
            property string title: "Plotter"
            Layout.fillWidth: true
            backgroundColor: "#e4e8ee"

            GridLayout {
                columns: 2
                width: parent.width
                Label { text: "Plotter" }
                ComboBox { objectName: "plotter"; Layout.fillWidth: true }
                Label { text: "Paper" }
                ComboBox { objectName: "paper"; editable: true; model: ["A4", "A3", "Letter"] }
                Label { text: "Plot style" }
                ToggleButton { objectName: "style"; model: ["Colour", "Monochrome", "Greyscale"] }
            }
        }

        Panel {
            id: pensPage
            objectName: "pensPage"
            property string title: "Pens"
            Layout.fillWidth: true
            backgroundColor: "#e4e8ee"

            Label { text: "Pen table of the plot server" }
        }

        RowLayout {
            objectName: "PANEL_progress"
            Button { objectName: "preview"; text: "Preview" }
            ProgressBar { objectName: "progress"; Layout.fillWidth: true }
        }

        CheckBox { objectName: "agree"; text: "I have checked the layout" }
    }

    // Filled by the dialog code, popped up over the title field.
    WxConvMenu { objectName: "titleMenu" }
}
