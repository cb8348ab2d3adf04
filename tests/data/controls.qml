import QtQuick 2.15
import Arvela.Components 1.0

DialogAV {
    width: 400
    height: 800

    Column {
        Button { objectName: "wxID_OK"; text: "OK" }
        Button { objectName: "wxID_CANCEL"; text: "Cancel" }
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
