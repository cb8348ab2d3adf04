import QtQuick 2.15
import QtQuick.Layouts 1.15
import Arvela.Components 1.0

DialogAV {
    showOk: false
    showCancel: false
    Field { objectName: "a%1" }
    Item {
        Field { objectName: "a%1" }
        Field { objectName: "b" }
    }
    RowLayout { objectName: "PANEL_left"; Field { objectName: "c" } }
    Item { objectName: "wxID_ANY"; Field { objectName: "d" } }
    Item { objectName: "box"; Field { objectName: "e" } }
    Item { objectName: "menu"; property string qmlType: "Menu"; Field { objectName: "f" } }
    Loader { objectName: "loader" }
    Rectangle { objectName: "rect" }
}
