import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQml.Models 2.15
import Arvela.Components 1.0

// Objects that controls make for themselves and a view's delegate model: the
// walk must not take their content for controls of the dialog.
DialogAV {
    showOk: false
    showCancel: false
    Button { objectName: "ok"; text: "&OK" }
    Pane { objectName: "pane" }
    DelegateModel { objectName: "rows" }
}
