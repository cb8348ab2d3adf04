import QtQuick 2.15
import Arvela.Components 1.0

DialogAV {
    showOk: false
    showCancel: false
    Field { objectName: "first" }
    Item { objectName: "plain" }
    Item {
        objectName: "nested"
        Item {
            Field { objectName: "deep" }
        }
    }
    Loader {
        objectName: "page"
        property string pageName: "one"
        sourceComponent: pageName === "one" ? one : two
        Component { id: one; Field { objectName: "swapped"; width: 1 } }
        Component { id: two; Field { objectName: "swapped"; width: 2 } }
    }
}
