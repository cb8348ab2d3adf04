import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls
import Arvela.Components 1.0 as Kit

// A list that wx-style code fills through its wrapper, or that shows the
// strings written into "model". Rows given to it and reported by it are rows of
// "model", whatever the filter ("filterRegexp" on "filterRole") and sorting
// ("sortingEnabled") show; the current row stays while a filter hides it.
// With "checkableItems" each row has a check box whose changes are reported by
// "checkedChanged"; the mark is shown as the model has it.
FocusScope {
    id: root

    readonly property string qmlType: "SingleSelListView"
    property var model: []
    property QtObject sortFilterModel: null
    property int filterRole: 256
    property var filterRegexp: new RegExp("")
    readonly property alias proxyModel: rows
    property alias currentIndex: rows.currentSourceRow
    property bool checkableItems: false
    property bool sortingEnabled: false
    readonly property alias view: list

    signal currentChanged(int row)
    signal selectionChanged()
    signal doubleClicked(int row)
    signal rightClicked(int row)
    signal checkedChanged(int row, bool checked)

    implicitWidth: 220
    implicitHeight: 160

    function positionViewAtIndex(row: int, mode: int) {
        var shown = rows.proxyRow(row)
        if (shown >= 0)
            list.positionViewAtIndex(shown, mode)
    }

    function choose(shownRow) {
        if (shownRow < 0 || shownRow >= list.count)
            return
        root.currentIndex = rows.sourceRow(shownRow)
        list.positionViewAtIndex(shownRow, ListView.Contain)
    }

    Kit.RowFilterModel {
        id: rows
        sourceModel: root.sortFilterModel ? root.sortFilterModel
                                          : (root.model && root.model.rowCount !== undefined ? root.model : null)
        filterRole: root.filterRole
        filterPattern: root.filterRegexp
        sortRole: 256
        onCurrentSourceRowChanged: {
            root.currentChanged(currentSourceRow)
            root.selectionChanged()
        }
        onCurrentRowChanged: list.currentIndex = currentRow
    }

    onSortingEnabledChanged: rows.sortBy(sortingEnabled ? 0 : -1)
    Component.onCompleted: if (sortingEnabled) rows.sortBy(0)

    Rectangle {
        anchors.fill: parent
        color: "white"
        border.color: root.activeFocus ? "#3b7bd4" : "#b8b8b8"
    }

    ListView {
        id: list

        anchors.fill: parent
        anchors.margins: 1
        clip: true
        focus: true
        keyNavigationEnabled: false
        boundsBehavior: Flickable.StopAtBounds
        model: rows.sourceModel ? rows : root.model
        currentIndex: -1
        highlightMoveDuration: 0
        Controls.ScrollBar.vertical: Controls.ScrollBar {}

        Keys.onUpPressed: root.choose(Math.max(list.currentIndex - 1, 0))
        Keys.onDownPressed: root.choose(list.currentIndex + 1)

        delegate: Rectangle {
            id: row

            readonly property bool isEnabled: model.enabled !== false

            width: ListView.view.width
            height: 24
            color: ListView.isCurrentItem || model.selected === true ? "#cfe0f7" : "transparent"
            opacity: isEnabled ? 1 : 0.5

            Row {
                anchors.fill: parent
                anchors.leftMargin: 4
                spacing: 4

                Controls.CheckBox {
                    id: check
                    visible: root.checkableItems
                    enabled: row.isEnabled
                    anchors.verticalCenter: parent.verticalCenter
                    padding: 0
                    checked: model.checked === true
                    onClicked: {
                        var wanted = checked
                        // The box shows the model's mark, which the list owner may keep.
                        checked = Qt.binding(function() { return model.checked === true })
                        root.checkedChanged(rows.sourceRow(index), wanted)
                    }
                }
                Loader {
                    anchors.verticalCenter: parent.verticalCenter
                    active: typeof model.image === "object"
                    visible: active
                    sourceComponent: Kit.ImageCanvas {
                        width: 16
                        height: 16
                        image: model.image
                    }
                }
                Image {
                    anchors.verticalCenter: parent.verticalCenter
                    visible: typeof model.image === "string" && model.image !== ""
                    source: visible ? model.image : ""
                    sourceSize: Qt.size(16, 16)
                }
                Text {
                    anchors.verticalCenter: parent.verticalCenter
                    text: model.modelData
                    color: model.textColour !== undefined ? model.textColour : "black"
                }
            }

            MouseArea {
                // The check box takes its own clicks.
                anchors.fill: parent
                anchors.leftMargin: check.visible ? check.width + 4 : 0
                acceptedButtons: Qt.LeftButton | Qt.RightButton
                onClicked: {
                    list.forceActiveFocus()
                    root.choose(index)
                    if (mouse.button === Qt.RightButton)
                        root.rightClicked(rows.sourceRow(index))
                }
                onDoubleClicked: {
                    if (mouse.button === Qt.LeftButton)
                        root.doubleClicked(rows.sourceRow(index))
                }
            }
        }
    }
}
