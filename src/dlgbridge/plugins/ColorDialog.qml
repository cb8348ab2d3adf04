import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls
import QtQuick.Layouts 1.15
import Arvela.Components 1.0 as Kit

// The colour dialog of the reference host: the colour index table as a grid
// (the 240 hues and shades, then the nine named colours and the six greys),
// by-layer and by-block buttons, and a true colour as red, green and blue.
// OK emits chosen({index, color}): index 1 to 255 for the table, 256 by layer,
// 0 by block, -1 a true colour in color. Cancel and Escape emit dismissed().
FocusScope {
    id: dialog

    objectName: "ColorDialog"
    property string title
    // The table's colours by index; entry 0 is unused.
    property var palette: []
    // Bits: 1 by layer and by block, 2 true colours, 4 nothing is current.
    property int options: 3
    // What is current when the dialog opens, named as chosen() names it; -2 for nothing.
    property int currentIndex: -2
    property color currentColor: "black"

    property int pickedIndex: currentIndex
    property color pickedColor: currentIndex >= 1 && currentIndex <= 255 && palette.length > currentIndex
                                ? palette[currentIndex] : currentColor

    signal chosen(var result)
    signal dismissed()

    function pick(index) {
        pickedIndex = index
        if (index >= 1 && index <= 255)
            pickedColor = palette[index]
    }
    function pickTrueColor(text) {
        var parts = text.split(",")
        if (parts.length !== 3)
            return false
        var rgb = []
        for (var i = 0; i < 3; ++i) {
            var value = parseInt(parts[i].trim(), 10)
            if (isNaN(value) || value < 0 || value > 255)
                return false
            rgb.push(value)
        }
        pickedIndex = -1
        pickedColor = Qt.rgba(rgb[0] / 255, rgb[1] / 255, rgb[2] / 255, 1)
        return true
    }
    function pickedName() {
        if (pickedIndex === 256)
            return qsTr("ByLayer")
        if (pickedIndex === 0)
            return qsTr("ByBlock")
        if (pickedIndex >= 1)
            return qsTr("Index color: %1").arg(pickedIndex)
        if (pickedIndex === -1)
            return qsTr("True color: %1,%2,%3").arg(Math.round(pickedColor.r * 255))
                .arg(Math.round(pickedColor.g * 255)).arg(Math.round(pickedColor.b * 255))
        return ""
    }
    function accept() {
        if (pickedIndex >= -1)
            chosen({"index": pickedIndex, "color": pickedColor})
    }

    implicitWidth: content.implicitWidth + 24
    implicitHeight: content.implicitHeight + 24
    focus: true
    Keys.onEscapePressed: dismissed()
    Keys.onReturnPressed: accept()

    Rectangle {
        anchors.fill: parent
        color: "#f0f0f0"
    }

    component Cell: Rectangle {
        property int colorIndex
        objectName: "index" + colorIndex
        width: 14
        height: 14
        color: dialog.palette.length > colorIndex ? dialog.palette[colorIndex] : "transparent"
        border.width: dialog.pickedIndex === colorIndex ? 2 : 1
        border.color: dialog.pickedIndex === colorIndex ? "#000000" : "#a0a0a0"
        MouseArea {
            anchors.fill: parent
            onClicked: dialog.pick(parent.colorIndex)
            onDoubleClicked: {
                dialog.pick(parent.colorIndex)
                dialog.accept()
            }
        }
    }

    ColumnLayout {
        id: content
        anchors.fill: parent
        anchors.margins: 12
        spacing: 10

        Controls.Label { text: qsTr("Index colors"); font.bold: true }
        // Hues across, shades down: index 10 + 10 * hue + shade.
        Grid {
            objectName: "indexGrid"
            columns: 24
            spacing: 1
            Repeater {
                model: 240
                Cell { colorIndex: 10 + 10 * (index % 24) + Math.floor(index / 24) }
            }
        }
        RowLayout {
            spacing: 12
            Row {
                spacing: 1
                Repeater {
                    model: 9
                    Cell { colorIndex: index + 1 }
                }
            }
            Row {
                spacing: 1
                Repeater {
                    model: 6
                    Cell { colorIndex: 250 + index }
                }
            }
        }
        RowLayout {
            visible: (dialog.options & 1) !== 0
            spacing: 8
            Controls.Button {
                objectName: "byLayer"
                text: qsTr("ByLayer")
                checkable: true
                checked: dialog.pickedIndex === 256
                onClicked: dialog.pick(256)
            }
            Controls.Button {
                objectName: "byBlock"
                text: qsTr("ByBlock")
                checkable: true
                checked: dialog.pickedIndex === 0
                onClicked: dialog.pick(0)
            }
        }
        ColumnLayout {
            visible: (dialog.options & 2) !== 0
            spacing: 4
            Controls.Label { text: qsTr("True color (red, green, blue)"); font.bold: true }
            RowLayout {
                spacing: 6
                Repeater {
                    model: [qsTr("Red"), qsTr("Green"), qsTr("Blue")]
                    Controls.Slider {
                        objectName: ["red", "green", "blue"][index]
                        Layout.preferredWidth: 110
                        from: 0
                        to: 255
                        stepSize: 1
                        value: [dialog.pickedColor.r, dialog.pickedColor.g, dialog.pickedColor.b][index] * 255
                        onMoved: {
                            var rgb = [dialog.pickedColor.r, dialog.pickedColor.g, dialog.pickedColor.b]
                            rgb[index] = value / 255
                            dialog.pickedIndex = -1
                            dialog.pickedColor = Qt.rgba(rgb[0], rgb[1], rgb[2], 1)
                        }
                        Controls.ToolTip.text: modelData
                        Controls.ToolTip.visible: hovered
                    }
                }
            }
            Controls.TextField {
                objectName: "trueColor"
                Layout.fillWidth: true
                placeholderText: qsTr("red,green,blue, e.g. 255,128,0")
                onTextEdited: dialog.pickTrueColor(text)
                onAccepted: dialog.accept()
            }
        }
        RowLayout {
            spacing: 8
            Kit.ColorSwatch {
                objectName: "picked"
                implicitWidth: 40
                implicitHeight: 24
                visible: dialog.pickedIndex >= -1
                color: dialog.pickedColor
                diagonal: dialog.pickedIndex === 0 || dialog.pickedIndex === 256
            }
            Controls.Label {
                objectName: "pickedName"
                Layout.fillWidth: true
                text: dialog.pickedName()
            }
            Controls.Button {
                objectName: "colorOk"
                text: qsTr("OK")
                enabled: dialog.pickedIndex >= -1
                onClicked: dialog.accept()
            }
            Controls.Button {
                objectName: "colorCancel"
                text: qsTr("Cancel")
                onClicked: dialog.dismissed()
            }
        }
    }
}
