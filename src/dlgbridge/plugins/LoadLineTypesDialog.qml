import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls
import QtQuick.Layouts 1.15

// The line type loader of the reference host: the line types it can load,
// each with its description, to be checked. OK emits chosen(names) with the
// names checked; Cancel and Escape emit dismissed().
FocusScope {
    id: dialog

    objectName: "LoadLineTypesDialog"
    property string title
    // [{name, description}]
    property var lineTypes: []
    property var checkedNames: []

    signal chosen(var names)
    signal dismissed()

    function setChecked(name, checked) {
        var names = checkedNames.filter(function(other) { return other !== name })
        if (checked)
            names.push(name)
        checkedNames = names
    }
    function accept() {
        chosen(lineTypes.map(function(row) { return row.name })
               .filter(function(name) { return checkedNames.indexOf(name) >= 0 }))
    }

    implicitWidth: 460
    implicitHeight: 360
    focus: true
    Keys.onEscapePressed: dismissed()

    Rectangle {
        anchors.fill: parent
        color: "#f0f0f0"
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 12
        spacing: 10

        Controls.Label { text: qsTr("Available line types"); font.bold: true }
        Rectangle {
            Layout.fillWidth: true
            Layout.fillHeight: true
            color: "white"
            border.color: "#a0a0a0"
            ListView {
                id: list
                objectName: "lineTypes"
                anchors.fill: parent
                anchors.margins: 1
                clip: true
                model: dialog.lineTypes
                delegate: Controls.CheckDelegate {
                    objectName: "lineType_" + modelData.name
                    width: list.width
                    checked: dialog.checkedNames.indexOf(modelData.name) >= 0
                    onToggled: dialog.setChecked(modelData.name, checked)
                    contentItem: RowLayout {
                        spacing: 12
                        Text { text: modelData.name; Layout.preferredWidth: 90; font.bold: true }
                        Text { text: modelData.description; Layout.fillWidth: true; elide: Text.ElideRight }
                    }
                }
            }
        }
        RowLayout {
            Layout.alignment: Qt.AlignRight
            spacing: 8
            Controls.Button { objectName: "loadOk"; text: qsTr("OK"); onClicked: dialog.accept() }
            Controls.Button { objectName: "loadCancel"; text: qsTr("Cancel"); onClicked: dialog.dismissed() }
        }
    }
}
