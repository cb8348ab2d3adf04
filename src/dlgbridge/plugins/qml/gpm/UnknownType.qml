import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls

// A property shown, not edited: its value as its type writes it, if it has one.
Controls.Label {
    property QtObject itemData

    text: itemData && itemData.value !== undefined ? itemData.value : ""
    elide: Text.ElideRight
    verticalAlignment: Text.AlignVCenter
}
