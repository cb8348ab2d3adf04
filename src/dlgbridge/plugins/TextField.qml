import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls

// A single line of text. Text reaches it through clear() and insert(), so that
// undo ("canUndo") and the change signals behave as for typing.
Controls.TextField {
    id: field

    signal keyPressed(int key, int modifiers, string text)
    signal keyReleased(int key, int modifiers, string text)
    signal contextMenu()
    signal doubleClicked()

    selectByMouse: true
    Keys.onPressed: field.keyPressed(event.key, event.modifiers, event.text)
    Keys.onReleased: field.keyReleased(event.key, event.modifiers, event.text)

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: field.contextMenu()
    }
    TapHandler {
        onDoubleTapped: field.doubleClicked()
    }
}
