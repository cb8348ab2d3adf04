import QtQuick 2.15
import QtQuick.Layouts 1.15
import Arvela.Components 1.0

DialogAV {
    showOk: false
    showCancel: false
    width: 300
    height: 200

    ColumnLayout {
        ComboBox { objectName: "kind"; model: ["a", "b"] }
        ComboBox { objectName: "path"; editable: true; model: ["Alpha", "beta"] }
        SpinBox { objectName: "count"; to: 10 }
        TextField { objectName: "name" }
        SearchField { objectName: "search" }
    }
}
