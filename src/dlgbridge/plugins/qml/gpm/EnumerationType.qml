import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls

// The editor of a choice among fixed values, a boolean's too.
Controls.ComboBox {
    id: combo

    property QtObject itemData
    // The row the property holds: where a refused choice comes back to.
    property int writtenIndex: itemData ? itemData.initialCurrentIndex : -1
    property int chosenIndex: -1

    model: itemData ? itemData.enumerationModel : null
    textRole: "modelData"
    currentIndex: writtenIndex
    displayText: itemData && itemData.isVaries ? qsTranslate("QObject", "*Varies*") : currentText
    onActivated: {
        chosenIndex = index
        itemData.setCurrentIndex(index)
    }

    Connections {
        target: combo.itemData
        function onUpdateFinished(succeeded) {
            if (succeeded)
                combo.writtenIndex = combo.chosenIndex
            combo.currentIndex = combo.writtenIndex
        }
    }
}
