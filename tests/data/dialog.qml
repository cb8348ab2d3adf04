import QtQuick 2.15
import QtQuick.Layouts 1.15
import Arvela.Components 1.0

DialogAV {
    title: "Test dialog"
    width: 320
    height: 240
    showApply: true

    ColumnLayout {
        CheckBox { objectName: "agree"; text: "Agree" }
        Label { objectName: "status"; text: "idle" }
        Panel {
            objectName: "details"
            SpinBox { objectName: "count"; to: 10 }
        }
        RowLayout {
            objectName: "PANEL_side"
            Button { objectName: "more"; text: "More" }
        }
    }
}
