import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls
import QtQuick.Layouts 1.15

// A combo of line weights over a LineWeightModel, whose rows come in the role
// "object": each is drawn as a bar as thick as its factor says, beside its name.
// The combo shows the model's current row, and a pick goes to the model.
Controls.ComboBox {
    id: combo

    readonly property string qmlType: "LineWeightComboBox"
    // The thickest weight's bar, in pixels.
    property int maximumThickness: 8

    signal keyPressed(int key, int modifiers, string text)
    signal keyReleased(int key, int modifiers, string text)

    // The model when it is a list model; what else "model" may hold has no rows to read.
    property QtObject rows: null
    onModelChanged: rows = !!model && typeof model.rowCount === "function" ? model : null

    function rowObject(row) {
        return rows && row >= 0 && row < count ? rows.data(rows.index(row, 0), 0) || null : null
    }

    implicitWidth: 180
    textRole: ""
    currentIndex: rows && rows.currentIndex !== undefined ? rows.currentIndex : -1
    readonly property var currentObject: count >= 0 ? rowObject(currentIndex) : null
    displayText: currentObject ? currentObject.lineWeightName : ""

    onActivated: {
        if (rows && typeof rows.onChangeCurrentComboIndex === "function")
            rows.onChangeCurrentComboIndex(index)
    }
    Keys.onPressed: combo.keyPressed(event.key, event.modifiers, event.text)
    Keys.onReleased: combo.keyReleased(event.key, event.modifiers, event.text)

    component Weight: RowLayout {
        property QtObject row
        spacing: 6
        Rectangle {
            Layout.preferredWidth: 40
            Layout.preferredHeight: row ? Math.max(1, Math.round(row.lineWeightFactor * combo.maximumThickness)) : 0
            Layout.alignment: Qt.AlignVCenter
            color: "#202020"
        }
        Text {
            Layout.fillWidth: true
            text: row ? row.lineWeightName : ""
            elide: Text.ElideRight
        }
    }

    contentItem: Weight {
        row: combo.currentObject
        Layout.leftMargin: 8
    }

    delegate: Controls.ItemDelegate {
        objectName: "lineWeightRow" + index
        width: combo.popup.width
        highlighted: combo.highlightedIndex === index
        contentItem: Weight { row: object }
    }
}
