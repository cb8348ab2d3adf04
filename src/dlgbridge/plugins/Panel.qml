import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls

// A container of controls inside a dialog or another panel; its children land
// in its content item.
Controls.Pane {
    padding: 6
    property color backgroundColor: "transparent"
    background: Rectangle { color: backgroundColor }
}
