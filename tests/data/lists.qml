import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls
import Arvela.Components 1.0

Column {
    width: 440
    spacing: 4

    SingleSelListView { objectName: "files"; width: 440; height: 120; model: ["alpha", "Beta", "gamma"] }
    SingleSelListView { objectName: "options"; width: 440; height: 100; checkableItems: true }
    SingleSelListView { objectName: "sorted"; width: 440; height: 40; sortingEnabled: true }
    SingleSelListView { objectName: "both"; width: 440; height: 40; checkableItems: true; sortingEnabled: true }
    WxConvTableView { objectName: "report"; width: 440; height: 160; editableColumns: [1] }
    WxConvTableView { objectName: "checks"; width: 440; height: 40; checkableColumns: [0] }
    TableView { objectName: "plain"; width: 440; height: 40 }
}
