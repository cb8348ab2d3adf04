import QtQuick 2.15
import Arvela.Components 1.0

DialogAV {
    title: "Installed"

    CheckBox { objectName: "agree"; text: "Agree" }
}
