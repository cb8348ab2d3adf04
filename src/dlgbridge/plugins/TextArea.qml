import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls

// Several lines of text. Like TextField it takes text through clear() and
// insert(); it has no ensureVisible(), which a text edit lacks.
Controls.TextArea {
    id: area

    signal keyPressed(int key, int modifiers, string text)
    signal keyReleased(int key, int modifiers, string text)
    signal contextMenu()
    signal doubleClicked()

    selectByMouse: true
    wrapMode: TextEdit.Wrap
    Keys.onPressed: area.keyPressed(event.key, event.modifiers, event.text)
    Keys.onReleased: area.keyReleased(event.key, event.modifiers, event.text)

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: area.contextMenu()
    }
    TapHandler {
        onDoubleTapped: area.doubleClicked()
    }
}
