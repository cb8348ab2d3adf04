import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls
import Arvela.Components 1.0 as Kit

// A notebook: one tab for each item of "pages", titled by the page's "title"
// when it has one, and only the page of the current tab visible. A tab shows
// its "image" (a QImage) before the title.
Controls.TabBar {
    id: bar

    property list<Item> pages

    signal currentChanged(int index)

    function showCurrentPage() {
        for (var page = 0; page < pages.length; ++page)
            pages[page].visible = page === currentIndex
    }

    onCurrentIndexChanged: {
        showCurrentPage()
        currentChanged(currentIndex)
    }
    onPagesChanged: showCurrentPage()
    Component.onCompleted: showCurrentPage()

    Repeater {
        model: bar.pages.length

        Controls.TabButton {
            id: tab

            property alias image: canvas.image

            text: bar.pages[index].title || ""
            contentItem: Row {
                spacing: canvas.implicitWidth > 0 ? 4 : 0

                Kit.ImageCanvas {
                    id: canvas
                    anchors.verticalCenter: parent.verticalCenter
                }
                Controls.Label {
                    text: tab.text
                    font: tab.font
                    color: tab.checked ? tab.palette.windowText : tab.palette.mid
                    anchors.verticalCenter: parent.verticalCenter
                }
            }
        }
    }
}
