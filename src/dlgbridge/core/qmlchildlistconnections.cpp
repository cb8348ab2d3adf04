// The connectTo... family of QmlChildList: QML signals to dialog code's handlers.
#include "qmlchildlist.h"

#include "itemsearch_p.h"
#include "logging_p.h"
#include "qmlcallbacks.h"
#include "qmlchildlist_p.h"
#include "wrapperkinds.h"

#include <QDebug>

#include <wx/defs.h>

#include <qut/qtconversions.h>

#include <algorithm>
#include <iterator>

namespace dbr {

namespace {

const QString wxIdAny = QStringLiteral("wxID_ANY");

struct StandardId
{
    int id;
    const char* name;
};

// The object names that standard buttons must carry, by wx id: the id's own name.
#define DBR_STANDARD_ID(id) StandardId{id, #id}
constexpr StandardId standardIds[] = {
    DBR_STANDARD_ID(wxID_ANY), DBR_STANDARD_ID(wxID_CLOSE), DBR_STANDARD_ID(wxID_NEW),
    DBR_STANDARD_ID(wxID_SAVE), DBR_STANDARD_ID(wxID_HELP), DBR_STANDARD_ID(wxID_DELETE),
    DBR_STANDARD_ID(wxID_REPLACE), DBR_STANDARD_ID(wxID_OK), DBR_STANDARD_ID(wxID_CANCEL),
    DBR_STANDARD_ID(wxID_APPLY), DBR_STANDARD_ID(wxID_YES), DBR_STANDARD_ID(wxID_NO),
    DBR_STANDARD_ID(wxID_STATIC), DBR_STANDARD_ID(wxID_FORWARD), DBR_STANDARD_ID(wxID_BACKWARD),
    DBR_STANDARD_ID(wxID_DEFAULT), DBR_STANDARD_ID(wxID_MORE), DBR_STANDARD_ID(wxID_SETUP),
    DBR_STANDARD_ID(wxID_RESET), DBR_STANDARD_ID(wxID_CONTEXT_HELP), DBR_STANDARD_ID(wxID_YESTOALL),
    DBR_STANDARD_ID(wxID_NOTOALL), DBR_STANDARD_ID(wxID_ABORT), DBR_STANDARD_ID(wxID_RETRY),
    DBR_STANDARD_ID(wxID_IGNORE), DBR_STANDARD_ID(wxID_ADD), DBR_STANDARD_ID(wxID_REMOVE),
};
#undef DBR_STANDARD_ID

const char* standardButtonName(int id)
{
    const auto found = std::find_if(std::begin(standardIds), std::end(standardIds),
                                    [id](const StandardId& entry) { return entry.id == id; });
    return found == std::end(standardIds) ? nullptr : found->name;
}

const char* dialogResultSignal(int id)
{
    switch (id) {
    case wxID_OK: return "2accepted()";
    case wxID_CANCEL: return "2rejected()";
    case wxID_APPLY: return "2applied()";
    }
    return nullptr;
}

template<typename Callback, typename Event>
std::function<std::unique_ptr<QObject>(qwxWindow*)> plainCallback(EventHandler<Event> handler)
{
    return [handler = std::move(handler)](qwxWindow* window) { return std::make_unique<Callback>(window, handler); };
}

} // namespace

void QmlChildList::connectToSignal(const char* signal, const OdString& name, const CallbackFactory& makeCallback,
                                   const QStringList& types, const char* slot, Qt::ConnectionType type)
{
    const QString objectName = qut::toQt(name);
    if (objectName.isEmpty())
        return;
    QObject* top = root();
    if (!top) {
        qWarning().noquote() << QStringLiteral("(%1) Unable to connect to event: no child root object").arg(objectName);
        return;
    }
    if (objectName == wxIdAny)
        connectEvery(signal, makeCallback, types, slot, type);
    else
        connectOne(*top, signal, objectName, makeCallback, slot, type);
}

void QmlChildList::connectOne(QObject& top, const char* signal, const QString& name,
                              const CallbackFactory& makeCallback, const char* slot, Qt::ConnectionType type)
{
    qwxWindow* window = d->findWindow(name);
    if (!window) {
        qWarning().noquote() << QStringLiteral("(%1) Did not find wrapper component").arg(name);
        return;
    }
    QObject* item = itemsearch::find(top, name);
    if (!item) {
        qWarning().noquote() << QStringLiteral("(%1) Did not find qml component").arg(name);
        return;
    }
    connectCallback(*item, signal, makeCallback(window), slot, type);
}

void QmlChildList::connectEvery(const char* signal, const CallbackFactory& makeCallback, const QStringList& types,
                                const char* slot, Qt::ConnectionType type)
{
    // One walk per root for all the wrappers of the types, each item being the one its own search would find.
    std::vector<std::pair<qwxWindow*, QObject*>> sources;
    QHash<QObject*, QSet<QString>> namesByRoot;
    d->forEachChild([&](qwxWindow& window) {
        if (!types.contains(window.typeName()))
            return;
        QObject* windowRoot = window.root();
        if (!windowRoot)
            return;
        sources.emplace_back(&window, windowRoot);
        namesByRoot[windowRoot].insert(window.wrappedObjectName());
    });
    QHash<QObject*, QHash<QString, QObject*>> itemsByRoot;
    for (auto names = namesByRoot.begin(); names != namesByRoot.end(); ++names)
        itemsByRoot.insert(names.key(), itemsearch::findAll(*names.key(), std::move(names.value())));

    bool connected = false;
    for (const auto& [window, windowRoot] : sources) {
        const QString name = window->wrappedObjectName();
        QObject* item = itemsByRoot.value(windowRoot).value(name);
        if (!item) {
            qWarning() << "Did not find object" << name;
            continue;
        }
        if (!connectCallback(*item, signal, makeCallback(window), slot, type))
            continue;
        qCDebug(lcInitSignals).noquote() << QStringLiteral("Connect %1 (%2) to %3")
                                                .arg(QLatin1String(signal), window->typeName(), item->objectName());
        connected = true;
    }
    if (!connected) {
        qWarning().noquote() << QStringLiteral("Did not find an object of type '%1' to connect to %2")
                                    .arg(types.join(QLatin1Char(',')), QLatin1String(signal));
    }
}

bool QmlChildList::connectCallback(QObject& item, const char* signal, std::unique_ptr<QObject> callback,
                                   const char* slot, Qt::ConnectionType type)
{
    // A callback whose connection Qt refused could never fire, so it is not kept.
    QMetaObject::Connection connection = QObject::connect(&item, signal, callback.get(), slot, type);
    if (!connection) {
        qCWarning(lcInitSignals).noquote() << QStringLiteral("(%1) Unable to connect %2 to %3")
                                                  .arg(item.objectName(), QLatin1String(signal), QLatin1String(slot));
        return false;
    }
    d->connections.push_back(std::move(connection));
    addQmlCallback(std::move(callback));
    return true;
}

void QmlChildList::connectCommand(const char* signal, const char* slot, const OdString& name, CommandHandler handler,
                                  const QStringList& types, CommandEventBuilder eventBuilder)
{
    connectToSignal(
        signal, name,
        [&handler, &eventBuilder](qwxWindow* window) {
            return std::make_unique<QmlGenericCallback>(handler, window, eventBuilder);
        },
        types, slot);
}

void QmlChildList::connectToTextAcceptedEvent(const OdString& name, EventHandler<qwxCommandEvent> handler)
{
    connectCommand("2accepted()", "1onEvent()", name, std::move(handler), {"qwxTextCtrl", "qwxComboBox"});
}

void QmlChildList::connectToClickEvent(const OdString& name, EventHandler<qwxCommandEvent> handler)
{
    connectCommand("2clicked()", "1onEvent()", name, std::move(handler), {"qwxButton", "qwxBitmapButton"});
}

void QmlChildList::connectToClickEvent(int id, EventHandler<qwxCommandEvent> handler)
{
    const char* name = standardButtonName(id);
    if (!name) {
        qWarning().noquote() << QStringLiteral("Not handling connecting to click event for ID '%1'").arg(id);
        return;
    }
    connectToClickEvent(OdString(name), std::move(handler));
}

void QmlChildList::connectToRadioButtonEvent(const OdString& name, EventHandler<qwxCommandEvent> handler)
{
    connectCommand("2clicked()", "1onEvent()", name, std::move(handler), {"qwxRadioButton"});
}

void QmlChildList::connectToToggleButtonEvent(const OdString& name, EventHandler<qwxCommandEvent> handler)
{
    connectCommand("2currentIndexChanged()", "1onEvent()", name, std::move(handler), {"qwxToggleButton"});
}

void QmlChildList::connectToCheckBoxEvent(const OdString& name, EventHandler<qwxCommandEvent> handler)
{
    connectCommand("2clicked()", "1onEvent()", name, std::move(handler), {"qwxCheckBox"}, valueevents::checkBoxState);
}

void QmlChildList::connectToNotebookPageChangedEvent(const OdString& name, EventHandler<qwxCommandEvent> handler)
{
    connectCommand("2currentChanged(int)", "1onIntEvent(int)", name, std::move(handler), {"qwxNotebook"});
}

void QmlChildList::connectToMenuEvent(const OdString& name, EventHandler<qwxCommandEvent> handler)
{
    const wxString itemString = qut::wxFromOd(name);
    auto onItem = [itemString, handler = std::move(handler)](qwxCommandEvent& event) {
        if (event.GetString().Cmp(itemString) == 0)
            handler(event);
    };
    connectCommand("2menuItemTriggered(QString)", "1onStringEvent(QString)", OdString("wxID_ANY"), std::move(onItem),
                   {"qwxMenu"});
}

void QmlChildList::connectToTextEvent(const OdString& name, EventHandler<qwxCommandEvent> handler)
{
    const char* comboSignal = "2editTextChanged()";
    const char* textSignal = "2textChanged()";
    if (qut::toQt(name) == wxIdAny) {
        connectCommand(comboSignal, "1onEvent()", name, handler, {QStringLiteral("qwxComboBox")},
                       valueevents::textValue);
        connectCommand(textSignal, "1onEvent()", name, std::move(handler), {QStringLiteral("qwxTextCtrl")},
                       valueevents::textValue);
        return;
    }
    // An unknown name takes the text path, whose refusal logs why.
    const qwxWindow* window = FindWindow(name);
    const QString type = window ? window->typeName() : QString();
    if (type == QStringLiteral("qwxComboBox"))
        connectCommand(comboSignal, "1onEvent()", name, std::move(handler), {type}, valueevents::textValue);
    else if (type == QStringLiteral("qwxSpinCtrl"))
        connectCommand("2valueModified()", "1onEvent()", name, std::move(handler), {type}, valueevents::textValue);
    else
        connectCommand(textSignal, "1onEvent()", name, std::move(handler), {QStringLiteral("qwxTextCtrl")},
                       valueevents::textValue);
}

void QmlChildList::connectToChoiceEvent(const OdString& name, EventHandler<qwxCommandEvent> handler)
{
    connectCommand("2activated(int)", "1onEvent()", name, std::move(handler), {QStringLiteral("qwxChoice")},
                   valueevents::choiceSelection);
}

void QmlChildList::connectToComboEvent(const OdString& name, EventHandler<qwxCommandEvent> handler)
{
    connectCommand("2activated(int)", "1onEvent()", name, std::move(handler), {QStringLiteral("qwxComboBox")},
                   valueevents::textValue);
}

void QmlChildList::connectToKeyPressedEvent(const OdString& name, EventHandler<qwxKeyEvent> handler)
{
    connectToSignal("2keyPressed(int,int,QString)", name, plainCallback<QmlKeyCallback>(std::move(handler)),
                    {"qwxTextCtrl"}, "1onKeyPressed(int,int,QString)");
}

void QmlChildList::connectToKeyReleasedEvent(const OdString& name, EventHandler<qwxKeyEvent> handler)
{
    connectToSignal("2keyReleased(int,int,QString)", name, plainCallback<QmlKeyCallback>(std::move(handler)),
                    {"qwxTextCtrl"}, "1onKeyPressed(int,int,QString)");
}

void QmlChildList::connectToContextMenuEvent(const OdString& name, EventHandler<qwxContextMenuEvent> handler)
{
    connectToSignal("2contextMenu()", name, plainCallback<QmlContextMenuCallback>(std::move(handler)),
                    {"qwxTextCtrl", "qwxTreeCtrl"}, "1onEvent()");
}

void QmlChildList::connectToContextMenuEvent(const qwxWindow& window, EventHandler<qwxContextMenuEvent> handler)
{
    connectToContextMenuEvent(qut::odFromQt(window.wrappedObjectName()), std::move(handler));
}

void QmlChildList::connectToLeftDoubleClick(const qwxWindow& window, EventHandler<qwxMouseEvent> handler)
{
    connectToSignal("2doubleClicked()", qut::odFromQt(window.wrappedObjectName()),
                    plainCallback<QmlMouseEventCallback>(std::move(handler)), {"qwxTextCtrl"}, "1onDoubleClick()");
}

void QmlChildList::connectToSizeEvent(const qwxWindow& window, EventHandler<qwxSizeEvent> handler)
{
    const OdString name = qut::odFromQt(window.wrappedObjectName());
    const QStringList types{qwxWindow::typeId()};
    connectToSignal("2widthChanged()", name, plainCallback<QmlSizeCallback>(handler), types, "1onWidthChanged()");
    connectToSignal("2heightChanged()", name, plainCallback<QmlSizeCallback>(std::move(handler)), types,
                    "1onHeightChanged()");
}

void QmlChildList::connectToDlgResult(int id, EventHandler<qwxCommandEvent> handler)
{
    const char* signal = dialogResultSignal(id);
    if (!signal) {
        qDebug() << "Did not find signal name for dialog result" << id;
        return;
    }
    connectCommand(signal, "1onEvent()", OdString("DialogAV"), std::move(handler), {});
}

void QmlChildList::connectToTimerEvent(qwxWindow& window, int id, EventHandler<qwxTimerEvent> handler)
{
    if (!d->timerHelper)
        d->timerHelper = std::make_unique<QmlTimerHelper>();
    QObject::connect(
        d->timerHelper.get(), &QmlTimerHelper::timerEventSignal, d->timerHelper.get(),
        [&window, id, handler = std::move(handler)](int tick) {
            if (id != -1 && id != tick)
                return;
            qwxTimerEvent event(&window, tick);
            handler(event);
        },
        Qt::DirectConnection);
}

} // namespace dbr
