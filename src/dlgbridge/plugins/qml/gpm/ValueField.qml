import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls

// The "value" of a property item as text: written back when editing ends, then
// read afresh whatever the item made of it, so that a refused or ignored text
// gives way to the property's real value.
Controls.TextField {
    id: field

    property QtObject itemData

    function shown() {
        // A new unit changes the text but notifies only unitsIndexChanged.
        if (itemData && itemData.unitsIndex !== undefined)
            itemData.unitsIndex
        return itemData ? itemData.value : ""
    }

    text: shown()
    selectByMouse: true
    onEditingFinished: {
        if (!itemData || text === itemData.value)
            return
        itemData.value = text
        text = Qt.binding(shown)
    }
}
