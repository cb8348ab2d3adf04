import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls
import QtQuick.Layouts 1.15

// The root of a command context dialog, the small panel a running command
// shows beside the command line. It takes input only while its controller's
// panelEnabled says so, and its close button asks the controller, which
// presses Escape at the command line: the command decides whether it goes.
// The file that uses it hands it the controller of its context:
//     ContextDialogAV { contextController: controller; ... }
FocusScope {
    id: panel

    objectName: "ContextDialogAV"
    readonly property string qmlType: "ContextDialogAV"
    property string title
    // Null leaves the panel enabled and its close button without effect.
    property QtObject contextController
    default property alias content: contentArea.data

    enabled: !contextController || contextController.panelEnabled
    implicitWidth: Math.max(contentArea.childrenRect.width, header.implicitWidth) + 16
    implicitHeight: contentArea.childrenRect.height + header.implicitHeight + 24

    Rectangle {
        anchors.fill: parent
        color: "#f0f0f0"
        border.color: "#b0b0b0"
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 8
        spacing: 8

        RowLayout {
            id: header
            Layout.fillWidth: true

            Controls.Label {
                text: panel.title
                font.bold: true
                Layout.fillWidth: true
            }
            Controls.ToolButton {
                objectName: "closeButton"
                text: "\u2715"
                onClicked: if (panel.contextController) panel.contextController.closeClick()
            }
        }

        Item {
            id: contentArea
            Layout.fillWidth: true
            Layout.fillHeight: true
        }
    }
}
