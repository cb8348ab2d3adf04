import QtQuick 2.15

// A colour sample of the CAD combos and the colour dialog: a framed square,
// crossed by a diagonal for colours that aren't fixed (by layer, by block).
Rectangle {
    id: swatch

    property bool diagonal: false

    implicitWidth: 14
    implicitHeight: 14
    border.color: "#606060"
    border.width: 1

    Canvas {
        anchors.fill: parent
        visible: swatch.diagonal
        onPaint: {
            var context = getContext("2d")
            context.reset()
            context.strokeStyle = "#404040"
            context.lineWidth = 1
            context.beginPath()
            context.moveTo(0, height)
            context.lineTo(width, 0)
            context.stroke()
        }
        onVisibleChanged: requestPaint()
    }
}
