import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls
import QtQuick.Layouts 1.15
import Arvela.Components 1.0 as Kit

// A combo of a drawing's line types. The wrapper sets "model" to the dialog's
// LineTypeModel, whose rows come in the role "object": a name and a preview
// drawn by the host at the size shown ("*Varies*" and "Load..." have none).
// Picking "Load..." opens the line type loader and ends on the line type loaded,
// or back on the row chosen before. The selection is this item's currentIndex;
// when the model's rows are rebuilt it stays on the line type it showed.
Controls.ComboBox {
    id: combo

    readonly property string qmlType: "LineTypeComboBox"
    // The line type chosen last, kept by name through rebuilt rows.
    property string chosenName
    // chosenName as it was before the rows went, to be found again once they are back.
    property string nameBeforeReset

    signal keyPressed(int key, int modifiers, string text)
    signal keyReleased(int key, int modifiers, string text)

    // The model when it is a list model; what else "model" may hold has no rows to read.
    property QtObject rows: null
    onModelChanged: rows = !!model && typeof model.rowCount === "function" ? model : null

    function rowObject(row) {
        return rows && row >= 0 && row < count ? rows.data(rows.index(row, 0), 0) || null : null
    }

    implicitWidth: 220
    textRole: ""
    // Counted up when the model's rows are rebuilt, so that the row shown is read anew.
    property int rebuilds: 0
    readonly property var currentObject: count >= 0 && rebuilds >= 0 ? rowObject(currentIndex) : null
    displayText: currentObject ? currentObject.lineTypeName : ""

    onCurrentIndexChanged: {
        // Rows rebuilt empty, as while no drawing is open, keep the name for later.
        var row = currentIndex !== count - 1 ? rowObject(currentIndex) : null
        if (row)
            chosenName = row.lineTypeName
    }
    // The combo takes in the new count after the model's reset, and then picks a
    // row of its own; the name is found again after that.
    function findNameBeforeReset() {
        if (!nameBeforeReset || !rows || count === 0 || count !== rows.rowCount()
                || typeof rows.getIndexFromLocalName !== "function")
            return
        currentIndex = rows.getIndexFromLocalName(nameBeforeReset)
        nameBeforeReset = ""
    }
    onCountChanged: findNameBeforeReset()
    // Runs the loader from the load row and shows the row it ends on.
    function load() {
        // The model's own current row becomes this combo's first, so that a
        // cancel comes back to it.
        if (!rows || typeof rows.setCurrentIndexOrLoad !== "function")
            return
        var before = chosenName ? rows.getIndexFromLocalName(chosenName) : -1
        rows.setCurrentIndexOrLoad(before)
        rows.setCurrentIndexOrLoad(count - 1)
        currentIndex = rows.currentIndex
    }
    // The load row of the pop-up: the loader rebuilds the rows, so it mustn't
    // run while the row that was clicked is still handling its click. The pick
    // is announced once the loader is done.
    function loadFromPopup() {
        popup.close()
        Qt.callLater(function() {
            if (count === 0)
                return
            load()
            activated(currentIndex)
        })
    }
    onActivated: {
        if (count > 0 && index === count - 1)
            load()
    }
    Keys.onPressed: combo.keyPressed(event.key, event.modifiers, event.text)
    Keys.onReleased: combo.keyReleased(event.key, event.modifiers, event.text)

    Connections {
        target: combo.rows
        ignoreUnknownSignals: true
        function onModelAboutToBeReset() {
            combo.nameBeforeReset = combo.chosenName
        }
        function onModelReset() {
            ++combo.rebuilds
            combo.findNameBeforeReset()
        }
    }

    // The row's preview at the size shown, asked again when either changes.
    component Preview: Kit.ImageCanvas {
        property QtObject row
        function refresh() {
            if (row && width >= 1 && height >= 1)
                image = row.lineTypePreview(Math.round(width), Math.round(height))
        }
        visible: !!row
        onRowChanged: refresh()
        onWidthChanged: refresh()
        onHeightChanged: refresh()
        Component.onCompleted: refresh()
    }

    contentItem: RowLayout {
        spacing: 6
        Text {
            Layout.leftMargin: 8
            Layout.preferredWidth: 110
            text: combo.displayText
            font: combo.font
            elide: Text.ElideRight
            verticalAlignment: Text.AlignVCenter
        }
        Preview {
            Layout.fillWidth: true
            Layout.preferredHeight: 10
            Layout.rightMargin: 4
            row: combo.currentObject
        }
    }

    delegate: Controls.ItemDelegate {
        objectName: "lineTypeRow" + index
        width: combo.popup.width
        highlighted: combo.highlightedIndex === index
        MouseArea {
            anchors.fill: parent
            enabled: index === combo.count - 1
            onClicked: combo.loadFromPopup()
        }
        contentItem: RowLayout {
            spacing: 6
            Text {
                Layout.preferredWidth: 110
                text: object ? object.lineTypeName : ""
                elide: Text.ElideRight
            }
            Preview {
                Layout.fillWidth: true
                Layout.preferredHeight: 10
                row: object
            }
        }
    }
}
