import QtQuick 2.15
import Arvela.Components 1.0 as Kit

// The image of dialogs: the kit's Image under the name dialogs have always used.
Kit.Image {
}
