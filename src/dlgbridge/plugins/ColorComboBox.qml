import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls
import QtQuick.Layouts 1.15
import Arvela.Components 1.0 as Kit

// A combo of CAD colours. The wrapper sets "model" to the dialog's ColorModel,
// whose rows come in the role "object": a swatch (crossed for by layer and by
// block, in the model's by-layer colour for index 256) and a name; the varies
// and load rows are told apart by their "type". Picking the load row opens the
// colour dialog: the colour chosen there becomes this combo's row, a cancel
// goes back to the row chosen before. The selection is this item's currentIndex.
Controls.ComboBox {
    id: combo

    readonly property string qmlType: "ColorComboBox"
    // The row chosen last that isn't the load row.
    property int chosenIndex: -1

    signal keyPressed(int key, int modifiers, string text)
    signal keyReleased(int key, int modifiers, string text)

    // The model when it is a list model; what else "model" may hold has no rows to read.
    property QtObject rows: null
    onModelChanged: rows = !!model && typeof model.rowCount === "function" ? model : null

    function rowObject(row) {
        return rows && row >= 0 && row < count ? rows.data(rows.index(row, 0), 0) || null : null
    }
    function rowText(row) {
        if (!row)
            return ""
        if (row.type === "varies")
            return qsTr("*Varies*")
        if (row.type === "load")
            return qsTr("Select Colors...")
        return row.name
    }
    function rowColor(row) {
        return row && row.colorIndex === 256 && rows ? rows.byLayerColor : (row ? row.color : "transparent")
    }

    implicitWidth: 180
    textRole: ""
    displayText: rowText(currentObject)
    // Counted up when the model's rows are rebuilt, so that the row shown is read anew.
    property int rebuilds: 0
    readonly property var currentObject: count >= 0 && rebuilds >= 0 ? rowObject(currentIndex) : null

    onCurrentIndexChanged: {
        if (currentIndex !== count - 1)
            chosenIndex = currentIndex
    }
    onActivated: {
        if (rows && typeof rows.doShowColorDialog === "function" && index === count - 1) {
            currentIndex = rows.doShowColorDialog(chosenIndex)
            // A colour new to the model takes the load row's place, so currentIndex
            // may not have changed.
            if (currentIndex !== count - 1)
                chosenIndex = currentIndex
        }
    }
    Keys.onPressed: combo.keyPressed(event.key, event.modifiers, event.text)
    Keys.onReleased: combo.keyReleased(event.key, event.modifiers, event.text)

    Connections {
        target: combo.rows
        ignoreUnknownSignals: true
        function onModelReset() { ++combo.rebuilds }
        function onByLayerColorChanged() { ++combo.rebuilds }
    }

    contentItem: RowLayout {
        spacing: 6
        Kit.ColorSwatch {
            Layout.leftMargin: 8
            visible: !!combo.currentObject && combo.currentObject.type === ""
            color: combo.rowColor(combo.currentObject)
            diagonal: !!combo.currentObject && combo.currentObject.drawDiagonal
        }
        Text {
            Layout.fillWidth: true
            text: combo.displayText
            font: combo.font
            elide: Text.ElideRight
            verticalAlignment: Text.AlignVCenter
        }
    }

    delegate: Controls.ItemDelegate {
        objectName: "colorRow" + index
        width: combo.popup.width
        highlighted: combo.highlightedIndex === index
        contentItem: RowLayout {
            spacing: 6
            Kit.ColorSwatch {
                visible: !!object && object.type === ""
                color: combo.rowColor(object)
                diagonal: !!object && object.drawDiagonal
            }
            Text {
                Layout.fillWidth: true
                text: combo.rowText(object)
                elide: Text.ElideRight
            }
        }
    }
}
