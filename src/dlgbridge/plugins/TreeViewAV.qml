import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls
import Arvela.Components 1.0 as Kit

// A tree that wx-style code fills through its wrapper: a list of the visible rows
// of "model", each indented by its level. Functions take, and signals give,
// indexes of "model". A row's label is edited in place (F2, or editLabel) where
// its "canEdit" allows, and rows are dragged onto rows with the mouse.
Controls.Control {
    id: tree

    readonly property string qmlType: "TreeViewAV"
    property QtObject model: Kit.SortFilterSelectModel {}
    readonly property alias view: list
    readonly property int indentation: 16

    // The drag in progress: the dragged indexes, and the row the pointer is over.
    property var dragged: null
    property var dropPlace: null
    property Item hoveredRow: null

    signal currentChanged(var previous, var current)
    signal doubleClicked(var index)
    signal hoveredNode(var index)
    signal beginDrag(var indexes, int modifiers)
    // dropType: 0 above the target row, 1 onto it, 2 below it.
    signal endDrag(var indexes, var target, int modifiers, var dropType)
    signal endLabelEdit(var index, string text)
    signal rightButtonClicked(var index)

    function isIndex(index) {
        return !!index && index.valid === true
    }

    function rowIndex(row) {
        var rows = model.visibleRows
        return rows.mapToSource(rows.index(row, 0))
    }

    function visibleRow(index) {
        return model.visibleRows.mapFromSource(index).row
    }

    function doExpand(index, expand) {
        if (!isIndex(index))
            return
        if (expand === false)
            model.collapse(index)
        else
            model.expand(index)
    }

    function doCollapse(index) {
        if (isIndex(index))
            model.collapse(index)
    }

    function doToggle(index) {
        if (isIndex(index))
            doExpand(index, !model.isExpanded(index))
    }

    function getExpanded(index) {
        return isIndex(index) && model.isExpanded(index)
    }

    // Only a shown row is edited: one below a collapsed node is left alone.
    function editLabel(index) {
        if (!isIndex(index) || visibleRow(index) < 0)
            return
        list.positionViewAtIndex(visibleRow(index), ListView.Contain)
        var row = list.itemAtIndex(visibleRow(index))
        if (row && row.canEdit())
            row.edit()
    }

    function select(row, modifiers) {
        if (row < 0 || row >= list.count)
            return
        if (list.selectionMode !== 0 && (modifiers & Qt.ControlModifier))
            model.ctrlSelection(rowIndex(row))
        else
            model.leftClickSelection(rowIndex(row))
        list.positionViewAtIndex(row, ListView.Contain)
    }

    // A selected row takes the selection along; an array rather than the model's list,
    // so that the wrapper receives one type either way.
    function startDrag(pressedRow, pressedSelected, modifiers) {
        var indexes = pressedSelected ? model.selectedRows() : [rowIndex(pressedRow)]
        dragged = []
        for (var i = 0; i < indexes.length; ++i)
            dragged.push(indexes[i])
        beginDrag(dragged, modifiers)
    }

    // Where a drop at point (in the list's content) lands: the upper and lower quarters
    // of a row put the dragged rows beside it, its middle half onto it.
    function placeAt(point) {
        var row = list.indexAt(point.x, point.y)
        var item = list.itemAtIndex(row)
        if (!item)
            return null
        var fraction = (point.y - item.y) / item.height
        return { item: item, row: row, type: fraction < 0.25 ? 0 : fraction < 0.75 ? 1 : 2 }
    }

    function drop(point, modifiers) {
        var place = placeAt(point)
        var indexes = dragged
        dragged = null
        dropPlace = null
        if (place)
            endDrag(indexes, rowIndex(place.row), modifiers, place.type)
    }

    function moveCurrent(key) {
        var current = model.currentIndex
        var row = visibleRow(current)
        if (row < 0)
            return select(0, Qt.NoModifier)
        var expanded = model.isExpanded(current)
        var expandable = model.hasChildren(current)
        if (key === Qt.Key_Up || key === Qt.Key_Down)
            select(row + (key === Qt.Key_Up ? -1 : 1), Qt.NoModifier)
        else if (key === Qt.Key_Left && expanded && expandable)
            model.collapse(current)
        else if (key === Qt.Key_Left && current.parent.valid)
            select(visibleRow(current.parent), Qt.NoModifier)
        else if (key === Qt.Key_Right && !expanded && expandable)
            model.expand(current)
        else if (key === Qt.Key_Right && expandable)
            select(row + 1, Qt.NoModifier)
    }

    implicitWidth: 200
    implicitHeight: 200
    focusPolicy: Qt.StrongFocus
    // Keys are the list's: focus given to the tree goes on to it.
    onActiveFocusChanged: if (activeFocus) list.forceActiveFocus()

    Connections {
        target: tree.model
        function onCurrentIndexChanged(current, previous) {
            tree.currentChanged(previous, current)
        }
    }

    Timer {
        id: toolTipDelay
        interval: 600
        onTriggered: if (tree.hoveredRow) tree.hoveredRow.showToolTip()
    }

    contentItem: ListView {
        id: list

        // 0: a click selects one row; else a ctrl-click adds a row to the selection or takes it out.
        property int selectionMode: 0

        clip: true
        focus: true
        model: tree.model.visibleRows
        keyNavigationEnabled: false
        boundsBehavior: Flickable.StopAtBounds
        Controls.ScrollBar.vertical: Controls.ScrollBar {}

        Keys.onPressed: {
            var moves = [Qt.Key_Up, Qt.Key_Down, Qt.Key_Left, Qt.Key_Right]
            event.accepted = event.key === Qt.Key_F2 || moves.indexOf(event.key) >= 0
            if (event.key === Qt.Key_F2)
                tree.editLabel(tree.model.currentIndex)
            else if (event.accepted)
                tree.moveCurrent(event.key)
        }

        Rectangle {
            id: dropMarker
            readonly property var place: tree.dropPlace
            visible: place !== null
            z: 2
            x: 0
            width: list.width
            y: !place ? 0 : place.type === 2 ? place.item.y + place.item.height - 1 : place.item.y
            height: place && place.type === 1 ? place.item.height : 2
            color: place && place.type === 1 ? "transparent" : tree.palette.highlight
            border.color: tree.palette.highlight
        }

        delegate: Item {
            id: row

            property bool editing: false

            // Asked anew each time: the application decides, and may decide otherwise now.
            function canEdit() {
                return !!tree.model.roleData(modelIndex(), "canEdit")
            }

            function modelIndex() {
                return tree.rowIndex(index)
            }

            function edit() {
                editing = true
            }

            function finishEditing(commit) {
                if (!editing)
                    return
                var text = editor.item.text
                editing = false
                list.forceActiveFocus()
                if (commit)
                    tree.endLabelEdit(modelIndex(), text)
            }

            // The application sets the tooltip in answer to the signal: the role is read after it.
            function showToolTip() {
                tree.hoveredNode(modelIndex())
                if (model.toolTip)
                    Controls.ToolTip.show(model.toolTip)
            }

            function hideToolTip() {
                Controls.ToolTip.hide()
            }

            function startEditOnCreation() {
                if (!model.editOnCreation)
                    return
                model.editOnCreation = false
                if (canEdit())
                    edit()
            }

            width: ListView.view.width
            height: Math.max(label.implicitHeight, editor.implicitHeight, 16) + 4
            Component.onCompleted: if (model.editOnCreation) Qt.callLater(startEditOnCreation)

            Rectangle {
                anchors.fill: parent
                color: model.selected ? tree.palette.highlight : "transparent"
                border.color: model.current && list.activeFocus ? tree.palette.highlight : "transparent"
            }

            MouseArea {
                id: mouseArea

                property point pressPoint
                property bool dragging: false

                anchors.fill: parent
                hoverEnabled: true
                // Rows are dragged, not the list.
                preventStealing: true

                onContainsMouseChanged: {
                    if (containsMouse) {
                        tree.hoveredRow = row
                        toolTipDelay.restart()
                    } else if (tree.hoveredRow === row) {
                        tree.hoveredRow = null
                        toolTipDelay.stop()
                        row.hideToolTip()
                    }
                }
                onPressed: {
                    list.forceActiveFocus()
                    pressPoint = Qt.point(mouse.x, mouse.y)
                    dragging = false
                    // A press on a selected row may start dragging the whole selection: the click decides later.
                    if (!model.selected && !(mouse.modifiers & Qt.ControlModifier))
                        tree.select(index, Qt.NoModifier)
                }
                onPositionChanged: {
                    if (!pressed)
                        return
                    if (!dragging) {
                        var distance = Math.max(Math.abs(mouse.x - pressPoint.x), Math.abs(mouse.y - pressPoint.y))
                        if (!model.dragValid || distance < Qt.styleHints.startDragDistance)
                            return
                        dragging = true
                        tree.startDrag(index, model.selected, mouse.modifiers)
                    }
                    tree.dropPlace = tree.placeAt(mapToItem(list.contentItem, mouse.x, mouse.y))
                }
                onReleased: if (dragging) tree.drop(mapToItem(list.contentItem, mouse.x, mouse.y), mouse.modifiers)
                onCanceled: {
                    tree.dragged = null
                    tree.dropPlace = null
                }
                onClicked: if (!dragging) tree.select(index, mouse.modifiers)
                onDoubleClicked: {
                    tree.doubleClicked(row.modelIndex())
                    tree.doToggle(row.modelIndex())
                }
            }

            Row {
                id: content
                x: (model.level - 1) * tree.indentation
                anchors.verticalCenter: parent.verticalCenter
                spacing: 4

                Controls.Label {
                    width: tree.indentation
                    text: model.expandable ? "\u25B8" : ""
                    rotation: model.expanded ? 90 : 0
                    horizontalAlignment: Text.AlignHCenter
                    color: model.selected ? tree.palette.highlightedText : tree.palette.text

                    MouseArea {
                        anchors.fill: parent
                        enabled: !!model.expandable
                        onClicked: tree.doToggle(row.modelIndex())
                    }
                }
                Loader {
                    active: model.image !== undefined
                    anchors.verticalCenter: parent.verticalCenter
                    sourceComponent: Kit.ImageCanvas {
                        image: model.image
                    }
                }
                Image {
                    source: model.icon ? model.icon : ""
                    visible: status === Image.Ready
                    sourceSize.height: 16
                    anchors.verticalCenter: parent.verticalCenter
                }
                Controls.Label {
                    id: label
                    visible: !row.editing
                    text: model.display !== undefined ? model.display : ""
                    font.bold: !!model.textBold
                    color: model.selected ? tree.palette.highlightedText
                                          : model.textColor !== undefined ? model.textColor : tree.palette.text
                }
                Loader {
                    id: editor
                    active: row.editing
                    width: Math.max(row.width - x - content.x - 4, 60)
                    sourceComponent: Controls.TextField {
                        text: label.text
                        Component.onCompleted: {
                            forceActiveFocus()
                            selectAll()
                        }
                        // Keys the field leaves, such as arrows at either end, stay out of the list.
                        Keys.priority: Keys.AfterItem
                        Keys.onPressed: event.accepted = true
                        Keys.onReturnPressed: row.finishEditing(true)
                        Keys.onEnterPressed: row.finishEditing(true)
                        Keys.onEscapePressed: row.finishEditing(false)
                        // Leaving the editor keeps what was typed, as a wx tree does.
                        onActiveFocusChanged: if (!activeFocus) row.finishEditing(true)
                    }
                }
            }

            Controls.ToolButton {
                visible: !!model.rightButtonIcon
                icon.source: model.rightButtonIcon ? model.rightButtonIcon : ""
                display: Controls.AbstractButton.IconOnly
                height: row.height
                width: height
                anchors.right: parent.right
                onClicked: tree.rightButtonClicked(row.modelIndex())
            }
        }
    }
}
