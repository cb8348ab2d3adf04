import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls

// A control of several states chosen by index: a row of segments, one of them current.
Row {
    id: control

    property var model: []
    property int currentIndex: 0

    Repeater {
        model: control.model

        Controls.Button {
            text: modelData
            highlighted: index === control.currentIndex
            onClicked: control.currentIndex = index
        }
    }
}
