import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls
import QtQuick.Layouts 1.15

// A message box of the reference host. The host gives the buttons as a list of
// {label, code}, labels with their "&" mark; a press emits answered(code), and
// Escape emits dismissed(), which the host answers as it answers a closed window.
FocusScope {
    id: box

    objectName: "MessageBox"
    property string title
    property string message
    // Shown smaller under the message when there is any.
    property string details
    // EMessageStyle: 0 info, 1 warning, 3 error.
    property int messageStyle: 0
    property var buttons: []

    signal answered(int code)
    signal dismissed()

    implicitWidth: Math.max(320, Math.min(560, content.implicitWidth + 24))
    implicitHeight: content.implicitHeight + 24
    focus: true
    Keys.onEscapePressed: dismissed()

    Rectangle {
        anchors.fill: parent
        color: "#f0f0f0"
    }

    ColumnLayout {
        id: content
        anchors.fill: parent
        anchors.margins: 12
        spacing: 12

        RowLayout {
            spacing: 12
            Layout.fillWidth: true

            Rectangle {
                objectName: "messageIcon"
                Layout.alignment: Qt.AlignTop
                width: 32
                height: 32
                radius: 16
                color: box.messageStyle === 3 ? "#c62828" : box.messageStyle === 1 ? "#f9a825" : "#1565c0"
                Text {
                    anchors.centerIn: parent
                    text: box.messageStyle === 3 ? "\u00d7" : box.messageStyle === 1 ? "!" : "i"
                    color: "white"
                    font.bold: true
                    font.pixelSize: 20
                }
            }

            ColumnLayout {
                spacing: 6
                Layout.fillWidth: true

                Controls.Label {
                    objectName: "messageText"
                    text: box.message
                    wrapMode: Text.Wrap
                    Layout.fillWidth: true
                    Layout.maximumWidth: 480
                }
                Controls.Label {
                    objectName: "detailsText"
                    visible: box.details.length > 0
                    text: box.details
                    wrapMode: Text.Wrap
                    font.pointSize: Qt.application.font.pointSize * 0.9
                    opacity: 0.75
                    Layout.fillWidth: true
                    Layout.maximumWidth: 480
                }
            }
        }

        RowLayout {
            Layout.alignment: Qt.AlignRight
            spacing: 8

            Repeater {
                model: box.buttons
                delegate: Controls.Button {
                    objectName: "messageButton" + index
                    text: modelData.label
                    focus: index === 0
                    onClicked: box.answered(modelData.code)
                }
            }
        }
    }
}
