import QtQuick 2.15
import Arvela.Components 1.0

ContextDialogAV {
    title: "Mark"
    contextController: controller
    width: 200
    height: 120

    Button { objectName: "circle"; text: "Circle" }
}
