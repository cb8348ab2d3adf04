import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls
import QtQuick.Layouts 1.15

// A property panel: a section for each category and a row for each property,
// which loads the editor its item names. The model's rows carry the roles
// "item" (the property's item) and "category" (its section's heading), in the
// order of the categories' weights. A read-only row can't be edited; each
// editor is named by its property's label. Colours and line types are edited
// in the kit's colour and line type combos.
ListView {
    id: panel

    property real labelWidth: width * 0.4

    // Colour and line type items name no editor file of their own: their type
    // tells them apart. The colour item offers "type" as a method too, which
    // QML then finds first.
    function editorUrl(item) {
        var type = typeof item.type === "function" ? item.type() : item.type
        if (type === "colour")
            return Qt.resolvedUrl("qml/gpm/ColorEditor.qml")
        if (type === "linetype")
            return Qt.resolvedUrl("qml/gpm/LineTypeEditor.qml")
        return item.componentUrl
    }

    clip: true
    spacing: 2
    section.property: "category"
    section.delegate: Controls.Label {
        width: ListView.view.width
        text: section
        font.bold: true
        topPadding: 6
        bottomPadding: 2
    }
    delegate: RowLayout {
        width: ListView.view.width
        spacing: 6

        Controls.Label {
            text: model.item ? model.item.label : ""
            elide: Text.ElideRight
            Layout.preferredWidth: panel.labelWidth
            Controls.ToolTip.visible: hover.hovered && model.item && model.item.description !== ""
            Controls.ToolTip.text: model.item ? model.item.description : ""
            HoverHandler {
                id: hover
            }
        }
        Loader {
            Layout.fillWidth: true
            enabled: model.item ? !model.item.isReadOnly : false
            Component.onCompleted: {
                if (model.item)
                    setSource(panel.editorUrl(model.item), {"itemData": model.item, "objectName": model.item.label})
            }
        }
    }
}
