import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls

// A button that shows only its icon (icon.source); the text serves as tooltip.
Button {
    display: Controls.AbstractButton.IconOnly
    Controls.ToolTip.visible: hovered && text !== ""
    Controls.ToolTip.text: text
}
