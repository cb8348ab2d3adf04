import QtQuick 2.15

// The editor of a text property.
ValueField {
}
