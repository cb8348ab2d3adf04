import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls

// A check box; "clicked()" follows the change of "checked".
Controls.CheckBox {
}
