import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls

// Progress from "from" to "to".
Controls.ProgressBar {
}
