import QtQuick 2.15
import Arvela.Components 1.0 as Kit

// The editor of a line type property: the kit's line type combo over the
// item's own line type model, the line type loader behind its last row. The
// loader and a change of drawing rebuild the rows, so the line type written is
// kept by name.
Kit.LineTypeComboBox {
    id: editor

    property QtObject itemData
    property string writtenName
    property string pickedName

    model: itemData ? itemData.lineTypeModel : null
    currentIndex: itemData ? itemData.initialLineTypeIndex : -1
    Component.onCompleted: {
        var row = rowObject(currentIndex)
        writtenName = row ? row.lineTypeName : ""
    }
    // After the combo's own handler: from the load row, the row the loader ended on.
    onActivated: {
        var row = currentIndex < count - 1 ? rowObject(currentIndex) : null
        if (!itemData || !row || row.lineTypeName === writtenName)
            return
        pickedName = row.lineTypeName
        itemData.setCurrentLineType(currentIndex)
    }

    Connections {
        target: editor.itemData
        function onUpdateFinished(succeeded) {
            if (succeeded)
                editor.writtenName = editor.pickedName
            else if (editor.rows)
                editor.currentIndex = editor.rows.getIndexFromLocalName(editor.writtenName)
        }
    }
}
