import QtQuick 2.15

// An item whose type, "Field", comes from its file name.
Item {
    property color backgroundColor: "white"
}
