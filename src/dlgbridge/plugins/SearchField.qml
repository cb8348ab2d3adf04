import QtQuick 2.15

// A text field for a search; "placeholderText" holds the hint.
TextField {
    placeholderText: qsTr("Search")
}
