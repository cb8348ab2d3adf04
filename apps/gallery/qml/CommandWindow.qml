import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls
import QtQuick.Layouts 1.15

// The drawing window of the reference host: a drawing area above the command
// line. Keys typed into the command field go to the host's command line one by
// one, as the application's input processor takes them.
Rectangle {
    id: window

    width: 560
    height: 400
    color: "#f0f0f0"

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        Rectangle {
            objectName: "drawingArea"
            Layout.fillWidth: true
            Layout.fillHeight: true
            color: "#20242a"
            clip: true

            // A click picks a point, as if its coordinates were typed.
            MouseArea {
                anchors.fill: parent
                onClicked: commandLine.enter(Math.round(mouse.x) + "," + Math.round(mouse.y))
            }

            // One line every 20 units of the drawing.
            Repeater {
                model: Math.ceil(parent.width / 20)
                Rectangle { x: index * 20; width: 1; height: parent.height; color: "#2c323a" }
            }
            Repeater {
                model: Math.ceil(parent.height / 20)
                Rectangle { y: index * 20; height: 1; width: parent.width; color: "#2c323a" }
            }

            Repeater {
                model: drawing.marks
                delegate: Item {
                    x: modelData.x - 12
                    y: modelData.y - 12
                    width: 24
                    height: 24

                    Rectangle {
                        anchors.fill: parent
                        visible: modelData.shape !== "Cross"
                        radius: modelData.shape === "Circle" ? width / 2 : 0
                        color: "transparent"
                        border.color: "#f5c542"
                        border.width: 2
                    }
                    Rectangle {
                        visible: modelData.shape === "Cross"
                        anchors.centerIn: parent; width: parent.width; height: 2; color: "#f5c542"
                    }
                    Rectangle {
                        visible: modelData.shape === "Cross"
                        anchors.centerIn: parent; width: 2; height: parent.height; color: "#f5c542"
                    }
                }
            }
        }

        // The command line: what was said above, the prompt and the typed text below.
        Rectangle {
            Layout.fillWidth: true
            Layout.preferredHeight: 118
            color: "white"
            border.color: "#b0b0b0"

            ColumnLayout {
                anchors.fill: parent
                anchors.margins: 6
                spacing: 2

                ListView {
                    objectName: "transcript"
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    clip: true
                    model: commandLine.transcript
                    delegate: Controls.Label { text: modelData; font.family: "monospace"; color: "#505050" }
                    onCountChanged: positionViewAtEnd()
                }

                RowLayout {
                    Layout.fillWidth: true
                    spacing: 0

                    Controls.Label { text: commandLine.prompt; font.family: "monospace"; font.bold: true }
                    Controls.TextField {
                        objectName: "commandInput"
                        Layout.fillWidth: true
                        font.family: "monospace"
                        readOnly: true
                        focus: true
                        text: commandLine.input
                        Keys.onPressed: {
                            commandLine.keyPressed(event.key, event.text)
                            event.accepted = true
                        }
                    }
                }
            }
        }
    }
}
