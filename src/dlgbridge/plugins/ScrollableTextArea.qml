import QtQuick 2.15

// A text area meant to scroll. The wrapper needs the text's own properties and
// methods on the named item, so the item is the area itself: put it in a
// Flickable (TextArea.flickable) where it must scroll.
TextArea {
    clip: true
}
