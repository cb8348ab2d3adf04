import QtQuick 2.15
import Arvela.Components 1.0

DialogAV {
    Column {
        ComboBox { objectName: "twin"; model: ["a", "b", "c"] }
        ToggleButton { objectName: "twin"; model: ["A", "B"] }
    }
}
