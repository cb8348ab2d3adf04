import QtQuick 2.15
import Arvela.Components 1.0

DialogAV {
    width: 300
    height: 400

    Column {
        TextField { objectName: "field"; width: 200 }
        RadioButton { objectName: "radio"; text: "Radio" }
        ToggleButton { objectName: "mode"; model: ["A", "B"] }
        TabBar { objectName: "pages"; pages: [Item {}, Item {}, Item {}] }
        WxConvMenu { objectName: "menu" }
    }
}
