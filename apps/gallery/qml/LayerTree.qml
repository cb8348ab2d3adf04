import QtQuick 2.15
import QtQuick.Layouts 1.15
import Arvela.Components 1.0

// The layers of a drawing in their groups, as the application would ship it:
// the dialog code in C++ knows its controls only by object name.
DialogAV {
    title: "Layers"
    width: 360
    height: 440

    ColumnLayout {
        width: parent.width
        height: parent.height
        spacing: 8

        SearchField {
            objectName: "filter"
            Layout.fillWidth: true
            placeholderText: "Filter layers"
        }
        TreeViewAV {
            objectName: "layers"
            Layout.fillWidth: true
            Layout.fillHeight: true
            // Ctrl-click adds to the selection.
            Component.onCompleted: view.selectionMode = 1
        }
        Label { objectName: "hint"; text: "F2 renames; drag a layer onto a group" }
    }
}
