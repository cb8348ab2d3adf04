// The connectTo... family of QmlChildList: QML signals to dialog code's handlers.
#include "qmlchildlist.h"

#include "logging_p.h"
#include "qmlcallbacks_p.h"
#include "qmlchildlist_p.h"

#include <dlgbridge/controls/qwxcheckbox.h>
#include <dlgbridge/controls/qwxchoice.h>
#include <dlgbridge/controls/qwxcombobox.h>
#include <dlgbridge/controls/qwxsearchctrl.h>
#include <dlgbridge/controls/qwxspinctrl.h>
#include <dlgbridge/controls/qwxtextctrl.h>

#include <QDebug>

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

// The object names that standard buttons must carry, by wx id.
constexpr StandardId standardIds[] = {
    {-1, "wxID_ANY"},        {5001, "wxID_CLOSE"},   {5002, "wxID_NEW"},      {5003, "wxID_SAVE"},
    {5009, "wxID_HELP"},     {5038, "wxID_DELETE"},  {5039, "wxID_REPLACE"},  {5100, "wxID_OK"},
    {5101, "wxID_CANCEL"},   {5102, "wxID_APPLY"},   {5103, "wxID_YES"},      {5104, "wxID_NO"},
    {5105, "wxID_STATIC"},   {5106, "wxID_FORWARD"}, {5107, "wxID_BACKWARD"}, {5108, "wxID_DEFAULT"},
    {5109, "wxID_MORE"},     {5110, "wxID_SETUP"},   {5111, "wxID_RESET"},    {5112, "wxID_CONTEXT_HELP"},
    {5113, "wxID_YESTOALL"}, {5114, "wxID_NOTOALL"}, {5115, "wxID_ABORT"},    {5116, "wxID_RETRY"},
    {5117, "wxID_IGNORE"},   {5118, "wxID_ADD"},     {5119, "wxID_REMOVE"},
};

const char* standardButtonName(int id)
{
    const auto found = std::find_if(std::begin(standardIds), std::end(standardIds),
                                    [id](const StandardId& entry) { return entry.id == id; });
    return found == std::end(standardIds) ? nullptr : found->name;
}

const char* dialogResultSignal(int id)
{
    switch (id) {
    case 5100: return "2accepted()";
    case 5101: return "2rejected()";
    case 5102: return "2applied()";
    }
    return nullptr;
}

template<typename Callback, typename Event>
std::function<std::unique_ptr<QObject>(qwxWindow*)> plainCallback(EventHandler<Event> handler)
{
    return [handler = std::move(handler)](qwxWindow* window) { return std::make_unique<Callback>(window, handler); };
}

qwxCommandEvent checkBoxState(qwxWindow* window)
{
    if (auto* checkBox = dynamic_cast<qwxCheckBox*>(window))
        return qwxCommandEvent(window, checkBox->GetValue());
    return qwxCommandEvent(window);
}

// The current value of a text, search, combo or spin control, read when the signal arrives.
qwxCommandEvent textValue(qwxWindow* window)
{
    if (auto* search = dynamic_cast<qwxSearchCtrl*>(window))
        return qwxCommandEvent(window, search->GetValue(), nullptr);
    if (auto* text = dynamic_cast<qwxTextCtrl*>(window))
        return qwxCommandEvent(window, text->GetValue(), nullptr);
    if (auto* combo = dynamic_cast<qwxComboBox*>(window))
        return qwxCommandEvent(window, combo->GetValue(), nullptr);
    if (auto* spin = dynamic_cast<qwxSpinCtrl*>(window))
        return qwxCommandEvent(window, spin->GetValue(), nullptr);
    return qwxCommandEvent(window);
}

qwxCommandEvent choiceSelection(qwxWindow* window)
{
    auto* choice = dynamic_cast<qwxChoice*>(window);
    if (!choice)
        return qwxCommandEvent(window);
    const int selection = choice->GetSelection();
    return qwxCommandEvent(window, selection, choice->GetClientObject(selection));
}

qwxCommandEvent comboValue(qwxWindow* window)
{
    auto* combo = dynamic_cast<qwxComboBox*>(window);
    return combo ? qwxCommandEvent(window, combo->GetValue(), nullptr) : qwxCommandEvent(window);
}

} // namespace

bool QmlChildList::connectToSignal(const QString& signal, const OdString& name, const CallbackFactory& makeCallback,
                                   const QStringList& types, const std::string& slot, Qt::ConnectionType type)
{
    const QString objectName = qut::toQt(name);
    if (objectName.isEmpty())
        return false;
    QObject* top = root();
    if (!top) {
        qWarning().noquote() << QStringLiteral("(%1) Unable to connect to event: no child root object").arg(objectName);
        return false;
    }
    const QByteArray signalText = signal.toLatin1();

    if (objectName != wxIdAny) {
        qwxWindow* window = FindWindow(name);
        if (!window) {
            qWarning().noquote() << QStringLiteral("(%1) Did not find wrapper component").arg(objectName);
            return false;
        }
        QObject* item = top->objectName() == objectName ? top : top->findChild<QObject*>(objectName);
        if (!item) {
            qWarning().noquote() << QStringLiteral("(%1) Did not find qml component").arg(objectName);
            return false;
        }
        QObject::connect(item, signalText.constData(), &addQmlCallback(makeCallback(window)), slot.c_str(), type);
        return true;
    }

    bool connected = false;
    d->forEachChild(
        [&](qwxWindow& window) {
            QObject* item = window.findObject();
            if (!item || !types.contains(window.typeName()))
                return;
            QObject::connect(item, signalText.constData(), &addQmlCallback(makeCallback(&window)), slot.c_str(), type);
            qCDebug(lcInitSignals).noquote()
                << QStringLiteral("Connect %1 (%2) to %3").arg(signal, window.typeName(), item->objectName());
            connected = true;
        });
    if (!connected) {
        qWarning().noquote()
            << QStringLiteral("Did not find an object of type '%1' to connect to %2").arg(types.join(','), signal);
    }
    return true;
}

void QmlChildList::connectCommand(const char* signal, const char* slot, const OdString& name,
                                  EventHandler<qwxCommandEvent> handler, const QStringList& types,
                                  std::function<qwxCommandEvent(qwxWindow*)> eventBuilder)
{
    connectToSignal(
        QLatin1String(signal), name,
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
    connectCommand("2clicked()", "1onEvent()", name, std::move(handler), {"qwxCheckBox"}, checkBoxState);
}

void QmlChildList::connectToNotebookPageChangedEvent(const OdString& name, EventHandler<qwxCommandEvent> handler)
{
    connectCommand("2currentChanged(int)", "1onIntEvent(int)", name, std::move(handler), {"qwxNotebook"});
}

void QmlChildList::connectToMenuEvent(const OdString& name, EventHandler<qwxCommandEvent> handler)
{
    const wxString itemString = qut::wxFromQt(qut::toQt(name));
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
        connectCommand(comboSignal, "1onEvent()", name, handler, {qwxComboBox::typeId()}, textValue);
        connectCommand(textSignal, "1onEvent()", name, std::move(handler), {qwxTextCtrl::typeId()}, textValue);
        return;
    }
    // An unknown name takes the text path, whose refusal logs why.
    const qwxWindow* window = FindWindow(name);
    const QString type = window ? window->typeName() : QString();
    if (type == qwxComboBox::typeId())
        connectCommand(comboSignal, "1onEvent()", name, std::move(handler), {type}, textValue);
    else if (type == qwxSpinCtrl::typeId())
        connectCommand("2valueModified()", "1onEvent()", name, std::move(handler), {type}, textValue);
    else
        connectCommand(textSignal, "1onEvent()", name, std::move(handler), {qwxTextCtrl::typeId()}, textValue);
}

void QmlChildList::connectToChoiceEvent(const OdString& name, EventHandler<qwxCommandEvent> handler)
{
    connectCommand("2activated(int)", "1onEvent()", name, std::move(handler), {qwxChoice::typeId()}, choiceSelection);
}

void QmlChildList::connectToComboEvent(const OdString& name, EventHandler<qwxCommandEvent> handler)
{
    connectCommand("2activated(int)", "1onEvent()", name, std::move(handler), {qwxComboBox::typeId()}, comboValue);
}

void QmlChildList::connectToKeyPressedEvent(const OdString& name, EventHandler<qwxKeyEvent> handler)
{
    connectToSignal(QStringLiteral("2keyPressed(int,int,QString)"), name,
                    plainCallback<QmlKeyCallback>(std::move(handler)), {"qwxTextCtrl"},
                    "1onKeyPressed(int,int,QString)");
}

void QmlChildList::connectToKeyReleasedEvent(const OdString& name, EventHandler<qwxKeyEvent> handler)
{
    connectToSignal(QStringLiteral("2keyReleased(int,int,QString)"), name,
                    plainCallback<QmlKeyCallback>(std::move(handler)), {"qwxTextCtrl"},
                    "1onKeyPressed(int,int,QString)");
}

void QmlChildList::connectToContextMenuEvent(const OdString& name, EventHandler<qwxContextMenuEvent> handler)
{
    connectToSignal(QStringLiteral("2contextMenu()"), name, plainCallback<QmlContextMenuCallback>(std::move(handler)),
                    {"qwxTextCtrl", "qwxTreeCtrl"}, "1onEvent()");
}

void QmlChildList::connectToContextMenuEvent(const qwxWindow& window, EventHandler<qwxContextMenuEvent> handler)
{
    connectToContextMenuEvent(qut::odFromQt(window.wrappedObjectName()), std::move(handler));
}

void QmlChildList::connectToLeftDoubleClick(const qwxWindow& window, EventHandler<qwxMouseEvent> handler)
{
    connectToSignal(QStringLiteral("2doubleClicked()"), qut::odFromQt(window.wrappedObjectName()),
                    plainCallback<QmlMouseEventCallback>(std::move(handler)), {"qwxTextCtrl"}, "1onDoubleClick()");
}

void QmlChildList::connectToSizeEvent(const qwxWindow& window, EventHandler<qwxSizeEvent> handler)
{
    const OdString name = qut::odFromQt(window.wrappedObjectName());
    const QStringList types{qwxWindow::typeId()};
    connectToSignal(QStringLiteral("2widthChanged()"), name, plainCallback<QmlSizeCallback>(handler), types,
                    "1onWidthChanged()");
    connectToSignal(QStringLiteral("2heightChanged()"), name, plainCallback<QmlSizeCallback>(std::move(handler)), types,
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
