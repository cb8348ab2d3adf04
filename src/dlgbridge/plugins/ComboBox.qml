import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls

// A drop-down list. Not editable it is a wx choice, editable a combo box; the
// wrapper replaces "model" by a list model whose entries are in "modelData".
Controls.ComboBox {
    id: combo

    signal keyPressed(int key, int modifiers, string text)
    signal keyReleased(int key, int modifiers, string text)

    textRole: "modelData"
    Keys.onPressed: combo.keyPressed(event.key, event.modifiers, event.text)
    Keys.onReleased: combo.keyReleased(event.key, event.modifiers, event.text)
}
