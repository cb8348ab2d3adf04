import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls

// A whole number between "from" and "to"; "valueModified()" follows the user's changes only.
Controls.SpinBox {
    editable: true
}
