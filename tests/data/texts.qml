import QtQuick 2.15
import QtQuick.Layouts 1.15
import Arvela.Components 1.0

DialogAV {
    showOk: false
    showCancel: false
    width: 300
    height: 300

    ColumnLayout {
        TextField { objectName: "name" }
        TextArea { objectName: "notes" }
        ScrollableTextArea { objectName: "log" }
        SearchField { objectName: "search" }
        SpinBox { objectName: "count"; to: 10 }
    }
}
