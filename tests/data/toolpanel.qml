import QtQuick 2.15
import Arvela.Components 1.0

Panel {
    width: 200
    height: 80
    Button { objectName: "go"; text: "Go" }
}
