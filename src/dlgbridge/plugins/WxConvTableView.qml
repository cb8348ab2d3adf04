import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls
import Arvela.Components 1.0 as Kit

// A report table that wx-style code fills through its wrapper: a header with
// the model's column titles (a click sorts by that column), rows filtered by
// "filterRegexp" on "filterRole", several selected rows in "selectedSourceRows"
// (ctrl-click adds or takes away one). Rows given to it and reported by it are
// rows of "model". Cells of "editableColumns" are edited by a double click and
// reported by "tableCellChanged"; "checkableColumns" show the row's check mark.
FocusScope {
    id: root

    readonly property string qmlType: "WxConvTableView"
    property var model: null
    property QtObject sortFilterModel: null
    property int filterRole: 256
    property var filterRegexp: new RegExp("")
    readonly property alias proxyModel: rows
    // The row clicked last; the selection of a table with a single column, which its wrapper treats as a list.
    property alias currentIndex: rows.currentSourceRow
    property var selectedSourceRows: []
    property var checkableColumns: []
    property var editableColumns: []
    property bool sortingEnabled: true
    readonly property alias view: table
    readonly property int rowHeight: 24

    signal currentChanged(int row)
    signal selectionChanged()
    signal doubleClicked(int row)
    signal rightClicked(int row)
    signal tableCellChanged(int row, int column, string value)
    signal checkedChanged(int row, bool checked)

    implicitWidth: 420
    implicitHeight: 220

    function ensureVisible(row: int, column: int) {
        var shown = rows.proxyRow(row)
        if (shown < 0)
            return
        var top = shown * rowHeight
        if (top < table.contentY)
            table.contentY = top
        else if (top + rowHeight > table.contentY + table.height)
            table.contentY = top + rowHeight - table.height
    }

    function isSelected(sourceRow) {
        for (var i = 0; i < selectedSourceRows.length; ++i) {
            if (selectedSourceRows[i].row === sourceRow)
                return true
        }
        return false
    }

    function select(shownRow, modifiers) {
        var sourceRow = rows.sourceRow(shownRow)
        if (sourceRow < 0)
            return
        var index = rows.sourceModel.index(sourceRow, 0)
        if (!(modifiers & Qt.ControlModifier)) {
            selectedSourceRows = [index]
        } else if (isSelected(sourceRow)) {
            selectedSourceRows = selectedSourceRows.filter(function(entry) { return entry.row !== sourceRow })
        } else {
            var more = selectedSourceRows.slice()
            more.push(index)
            selectedSourceRows = more
        }
        rows.currentSourceRow = sourceRow
    }

    Kit.RowFilterModel {
        id: rows
        sourceModel: root.sortFilterModel ? root.sortFilterModel : root.model
        filterRole: root.filterRole
        filterPattern: root.filterRegexp
        sortRole: 256
        onCurrentSourceRowChanged: if (currentSourceRow >= 0) root.currentChanged(currentSourceRow)
    }

    // Selected indexes are not kept up to date as rows go, so a removal clears them.
    Connections {
        target: rows.sourceModel
        ignoreUnknownSignals: true
        function onRowsRemoved() { if (root.selectedSourceRows.length > 0) root.selectedSourceRows = [] }
        function onModelReset() { if (root.selectedSourceRows.length > 0) root.selectedSourceRows = [] }
    }

    onSelectedSourceRowsChanged: selectionChanged()

    Rectangle {
        anchors.fill: parent
        color: "white"
        border.color: root.activeFocus ? "#3b7bd4" : "#b8b8b8"
    }

    Controls.HorizontalHeaderView {
        id: header

        property int sortColumn: -1
        property int sortOrder: Qt.AscendingOrder

        anchors.left: table.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.topMargin: 1
        syncView: table
        clip: true

        delegate: Rectangle {
            implicitHeight: 24
            color: "#ececec"
            border.color: "#d0d0d0"

            Text {
                anchors.fill: parent
                anchors.leftMargin: 6
                verticalAlignment: Text.AlignVCenter
                elide: Text.ElideRight
                font.bold: true
                text: (display !== undefined ? display : "")
                      + (header.sortColumn === column ? (header.sortOrder === Qt.AscendingOrder ? " ▲" : " ▼") : "")
            }
            MouseArea {
                anchors.fill: parent
                enabled: root.sortingEnabled
                onClicked: {
                    header.sortOrder = header.sortColumn === column && header.sortOrder === Qt.AscendingOrder
                            ? Qt.DescendingOrder : Qt.AscendingOrder
                    header.sortColumn = column
                    rows.sortBy(column, header.sortOrder)
                }
            }
        }
    }

    TableView {
        id: table

        anchors.fill: parent
        anchors.margins: 1
        anchors.topMargin: header.height + 1
        clip: true
        focus: true
        boundsBehavior: Flickable.StopAtBounds
        model: rows.sourceModel ? rows : null
        rowHeightProvider: function() { return root.rowHeight }
        columnWidthProvider: function() { return Math.max(80, table.width / Math.max(1, table.columns)) }
        onWidthChanged: forceLayout()
        Controls.ScrollBar.vertical: Controls.ScrollBar {}

        delegate: Rectangle {
            id: cell

            readonly property bool checkable: root.checkableColumns.indexOf(column) >= 0
            readonly property bool editable: root.editableColumns.indexOf(column) >= 0
            readonly property bool rowEnabled: model.enabled !== false
            property bool editing: false
            // A pooled cell keeps its last row's text; hidden, nothing finds or clicks it.
            property bool pooled: false

            TableView.onPooled: pooled = true
            TableView.onReused: pooled = false
            visible: !pooled

            function sourceRow() {
                return rows.sourceRow(row)
            }

            implicitHeight: root.rowHeight
            color: root.isSelected(rows.sourceRow(row)) ? "#cfe0f7" : "transparent"
            opacity: rowEnabled ? 1 : 0.5

            Row {
                anchors.fill: parent
                anchors.leftMargin: 4
                spacing: 4
                visible: !cell.editing

                Controls.CheckBox {
                    id: check
                    visible: cell.checkable
                    enabled: cell.rowEnabled
                    anchors.verticalCenter: parent.verticalCenter
                    padding: 0
                    checked: model.checked === true
                    onClicked: {
                        var wanted = checked
                        checked = Qt.binding(function() { return model.checked === true })
                        root.checkedChanged(cell.sourceRow(), wanted)
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
                    text: model.modelData !== undefined ? model.modelData : ""
                    color: model.textColour !== undefined ? model.textColour : "black"
                }
            }

            MouseArea {
                anchors.fill: parent
                anchors.leftMargin: check.visible ? check.width + 4 : 0
                visible: !cell.editing
                acceptedButtons: Qt.LeftButton | Qt.RightButton
                onClicked: {
                    table.forceActiveFocus()
                    if (mouse.button === Qt.RightButton) {
                        if (!root.isSelected(cell.sourceRow()))
                            root.select(row, 0)
                        root.rightClicked(cell.sourceRow())
                    } else {
                        root.select(row, mouse.modifiers)
                    }
                }
                onDoubleClicked: {
                    if (mouse.button !== Qt.LeftButton)
                        return
                    root.doubleClicked(cell.sourceRow())
                    if (cell.editable)
                        cell.editing = true
                }
            }

            Loader {
                anchors.fill: parent
                active: cell.editing
                sourceComponent: Controls.TextField {
                    objectName: "cellEditor"
                    padding: 2
                    text: model.modelData !== undefined ? model.modelData : ""
                    Component.onCompleted: { forceActiveFocus(); selectAll() }
                    onAccepted: {
                        cell.editing = false
                        root.tableCellChanged(cell.sourceRow(), column, text)
                    }
                    Keys.onEscapePressed: cell.editing = false
                    onActiveFocusChanged: if (!activeFocus) cell.editing = false
                }
            }
        }
    }
}
