import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls
import QtQuick.Layouts 1.15

// A property panel: a section for each category and a row for each property,
// which loads the editor its item names. The model's rows carry the roles
// "item" (the property's item) and "category" (its section's heading), in the
// order of the categories' weights. A read-only row can't be edited; each
// editor is named by its property's label.
ListView {
    id: panel

    property real labelWidth: width * 0.4

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
                    setSource(model.item.componentUrl, {"itemData": model.item, "objectName": model.item.label})
            }
        }
    }
}
