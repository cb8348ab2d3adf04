import QtQuick 2.15
import QtQuick.Layouts 1.15
import Arvela.Components 1.0

// The drawings of a project as a report list, with the options to open them
// with, as the application would ship it: the dialog code in C++ knows its
// controls only by object name.
DialogAV {
    title: "Open drawings"
    width: 520
    height: 440

    ColumnLayout {
        width: parent.width
        height: parent.height
        spacing: 8

        SearchField {
            objectName: "search"
            Layout.fillWidth: true
            placeholderText: "Search drawings"
        }
        WxConvTableView {
            objectName: "drawings"
            Layout.fillWidth: true
            Layout.fillHeight: true
            editableColumns: [2]
        }
        Label { objectName: "hint"; text: "Click a heading to sort; double-click a layout to rename it" }
        SingleSelListView {
            objectName: "options"
            Layout.fillWidth: true
            Layout.preferredHeight: 76
            checkableItems: true
        }
    }
}
