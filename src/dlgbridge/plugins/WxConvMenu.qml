import QtQuick 2.15
import QtQuick.Controls 2.15 as Controls

// A menu that wx-style code fills through its wrapper. Each entry is an Action
// named by its identifier, so that the wrappers reach it by name; its
// "triggered(QObject*)" is what a single entry binds to, and the menu tells
// every trigger by identifier. Entries made here are QObject children of the
// menu (or of their sub menu) but no type of the wrapper table, so a walk
// over the dialog makes no wrapper of them.
Controls.Menu {
    id: menu

    signal menuItemTriggered(string identifier)

    // What append, appendSubMenu and appendSeparator made, for clear to destroy.
    property var made: []

    property Component entryComponent: Component {
        Controls.Action {}
    }
    // A sub menu takes entries of its own; the signal lets it stand where an entry
    // is bound. Its type keeps the walk from taking it for a plain "Menu".
    property Component subMenuComponent: Component {
        Controls.Menu {
            property string qmlType: "WxConvSubMenu"
            signal triggered(QtObject source)
        }
    }
    property Component separatorComponent: Component {
        Controls.MenuSeparator {}
    }

    // Entries go into parent when it is a sub menu, else into this menu.
    function append(parent, identifier, label) {
        var target = parent && parent.addAction !== undefined ? parent : menu
        var entry = entryComponent.createObject(target, { objectName: identifier, text: label })
        entry.triggered.connect(function() { menu.menuItemTriggered(identifier) })
        target.addAction(entry)
        made.push(entry)
    }

    function appendSubMenu(identifier, label) {
        var subMenu = subMenuComponent.createObject(menu, { objectName: identifier, title: label })
        menu.addMenu(subMenu)
        made.push(subMenu)
    }

    function appendSeparator() {
        menu.addItem(separatorComponent.createObject(menu.contentItem))
    }

    // Destruction is deferred: the names go at once, so nothing finds a cleared entry.
    function clear() {
        while (menu.count > 0)
            menu.removeItem(menu.itemAt(0))
        for (var i = 0; i < made.length; ++i) {
            made[i].objectName = ""
            made[i].destroy()
        }
        made = []
    }

    function doPopup() {
        menu.popup()
    }

    function doPopupAt(position) {
        menu.popup(position.x, position.y)
    }
}
