import QtQuick 2.15
import Arvela.Components 1.0

DialogAV {
    width: 300
    height: 400

    Column {
        TextField { objectName: "field"; width: 200 }
        RadioButton { objectName: "radio"; text: "Radio" }
        ToggleButton { objectName: "mode"; model: ["A", "B"] }
        // Stand-ins for a notebook and a menu, which carry the signals of theirs.
        Item { objectName: "pages"; property string qmlType: "Notebook"; signal currentChanged(int index) }
        Item { objectName: "menu"; property string qmlType: "WxConvMenu"; signal menuItemTriggered(string id) }
    }
}
