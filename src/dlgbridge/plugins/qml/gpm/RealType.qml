import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls
import QtQuick.Layouts 1.15

// The editor of a real number, with the units to show it in where the property has them.
RowLayout {
    id: editor

    property QtObject itemData

    ValueField {
        objectName: editor.objectName + "/value"
        itemData: editor.itemData
        inputMethodHints: Qt.ImhFormattedNumbersOnly
        Layout.fillWidth: true
    }
    Controls.ComboBox {
        objectName: editor.objectName + "/units"
        visible: editor.itemData ? editor.itemData.hasUnits : false
        model: editor.itemData ? editor.itemData.unitsModel : null
        textRole: "modelData"
        currentIndex: editor.itemData ? editor.itemData.unitsIndex : -1
        implicitWidth: 96
        onActivated: editor.itemData.setCurrentUnitIndex(index)
    }
}
