import QtQuick 2.15

// The editor of a whole number; "*NoValue*" and "*Varies*" stay typeable.
ValueField {
    inputMethodHints: Qt.ImhFormattedNumbersOnly
}
