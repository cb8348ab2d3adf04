import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls

// A radio button; buttons of one parent exclude each other.
Controls.RadioButton {
}
