import QtQuick 2.15
import Arvela.Components 1.0

DialogAV {
    width: 400
    height: 800

    Column {
        ButtonOutline { objectName: "outline"; text: "Outline" }
        ImageButton { objectName: "picture"; width: 32; height: 32 }
        ToggleButton { objectName: "mode"; model: ["A", "B", "C"] }
        CheckBox { objectName: "check"; text: "Check" }
        RadioButton { objectName: "radio"; text: "Radio" }
        Label { objectName: "caption"; text: "Name" }
        SpinBox { objectName: "count"; to: 100 }
        ImageAV { objectName: "preview"; width: 16; height: 16 }
        ProgressBar { objectName: "progress" }
    }
}
