import QtQuick 2.15

// The root of a dialog. The host ends the dialog when it emits accepted() or
// rejected(); applied() leaves it open.
FocusScope {
    id: dialog

    objectName: "DialogAV"
    property string title

    signal accepted()
    signal rejected()
    signal applied()

    function accept() { accepted() }
    function reject() { rejected() }
    function apply() { applied() }
}
