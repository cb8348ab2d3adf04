import QtQuick 2.15
import Arvela.Components 1.0 as Kit

// The editor of a colour property: the kit's colour combo over the item's own
// colour model, the colour dialog behind its last row. Colour rows only get
// added, above the last row, so a row index stays the colour it was.
Kit.ColorComboBox {
    id: editor

    property QtObject itemData
    // The row the property holds: where a refused pick comes back to.
    property int writtenIndex: itemData ? itemData.initialColorIndex : -1
    // The combo settles its first row while it is built; only rows shown after that are picks.
    property bool ready: false

    model: itemData ? itemData.colorModel : null
    currentIndex: writtenIndex
    Component.onCompleted: ready = true
    // chosenIndex follows every row shown but the load row, the colour dialog's choice too.
    onChosenIndexChanged: {
        if (ready && itemData && chosenIndex >= 0 && chosenIndex !== writtenIndex)
            itemData.setCurrentColor(chosenIndex)
    }

    Connections {
        target: editor.itemData
        function onUpdateFinished(succeeded) {
            if (succeeded)
                editor.writtenIndex = editor.chosenIndex
            else
                editor.currentIndex = editor.writtenIndex
        }
    }
}
