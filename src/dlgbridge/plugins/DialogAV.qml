import QtQuick 2.15
import QtQuick.Layouts 1.15

// The root of a dialog. Its standard buttons emit accepted(), rejected() and
// applied(); the host asks the dialog's controller before it ends on the first
// two, and dialog code hears all three. Declared children become the content.
FocusScope {
    id: dialog

    objectName: "DialogAV"
    // A dialog's file names its own type; the root is still the dialog, which has no wrapper.
    readonly property string qmlType: "DialogAV"
    property string title
    property bool showOk: true
    property bool showCancel: true
    property bool showApply: false
    default property alias content: contentArea.data

    implicitWidth: Math.max(contentArea.childrenRect.width, buttonRow.implicitWidth) + 24
    implicitHeight: contentArea.childrenRect.height + buttonRow.implicitHeight + 36

    signal accepted()
    signal rejected()
    signal applied()

    function accept() { accepted() }
    function reject() { rejected() }
    function apply() { applied() }

    Rectangle {
        anchors.fill: parent
        color: "#f0f0f0"
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 12
        spacing: 12

        Item {
            id: contentArea
            Layout.fillWidth: true
            Layout.fillHeight: true
        }

        RowLayout {
            id: buttonRow
            Layout.alignment: Qt.AlignRight
            spacing: 8

            // A button that isn't shown isn't made either, so it is no control of the dialog.
            Loader {
                active: dialog.showOk
                sourceComponent: Button { objectName: "wxID_OK"; text: qsTr("OK"); onClicked: dialog.accept() }
            }
            Loader {
                active: dialog.showCancel
                sourceComponent: Button { objectName: "wxID_CANCEL"; text: qsTr("Cancel"); onClicked: dialog.reject() }
            }
            Loader {
                active: dialog.showApply
                sourceComponent: Button { objectName: "wxID_APPLY"; text: qsTr("Apply"); onClicked: dialog.apply() }
            }
        }
    }

    Keys.onEscapePressed: reject()
}
