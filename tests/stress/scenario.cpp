#include "scenario.h"

#include "calls.h"
#include "randomqml.h"
#include "rng.h"
#include "treemodelrun.h"

#include <support/paths.h>
#include <support/testdialog.h>
#include <support/testhost.h>

#include <dlgbridge/controls/qwxbutton.h>
#include <dlgbridge/controls/qwxcheckbox.h>
#include <dlgbridge/controls/qwxtimer.h>
#include <dlgbridge/core/qmlchildlist.h>
#include <dlgbridge/hosting/qwxexistingpanel.h>
#include <dlgbridge/hosting/qwxpanel.h>
#include <dlgbridge/services/iwxqtpanel.h>

#include <quickhost/quickhost.h>

#include <QCoreApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>

#include <oda/OdDbDatabase.h>
#include <qut/qtconversions.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <vector>

namespace dbr::stress {

namespace {

std::unique_ptr<QObject> createQml(QQmlEngine& engine, const QByteArray& qml)
{
    QQmlComponent component(&engine);
    component.setData(qml, test::testDataUrl(QStringLiteral("stress.qml")));
    std::unique_ptr<QObject> object(component.create());
    if (!object) {
        // A fault of the generator, not of the library.
        std::fprintf(stderr, "stress: generated QML does not load:\n%s\n%s\n", qml.constData(),
                     qPrintable(component.errorString()));
        std::abort();
    }
    return object;
}

// The application's side of an existing panel: it owns the panel's QML and may replace it.
class PanelApplication : public IWxQtPanel
{
public:
    explicit PanelApplication(QQmlEngine& engine)
        : m_engine(engine)
    {}

    QObject* root() override { return m_root.get(); }
    wxWindow* wx() override { return nullptr; }
    void load(const QByteArray& qml) { m_root = createQml(m_engine, qml); }

private:
    QQmlEngine& m_engine;
    std::unique_ptr<QObject> m_root;
};

// An existing panel as application code writes one: it binds in doEventTableInit.
class BindingPanel : public qwxExistingPanel
{
public:
    explicit BindingPanel(std::function<void(QmlChildList&)> bind)
        : m_bind(std::move(bind))
    {}

    void doEventTableInit() override { m_bind(*qmlChildren(UseParentList)); }

private:
    std::function<void(QmlChildList&)> m_bind;
};

// Types a host may bring: over plain items, over a kit type, and one that makes nothing.
CustomTypes anyCustomTypes(Rng& rng)
{
    CustomTypes types;
    if (rng.percent(40))
        types[QStringLiteral("QQuickButton")] = test::factoryOf<qwxButton>();
    if (rng.percent(30))
        types[QStringLiteral("TextField")] = test::factoryOf<qwxCheckBox>();
    if (rng.percent(30))
        types[QStringLiteral("QQuickSlider")] = test::factoryOf<test::TestControl>();
    if (rng.percent(20))
        types[QStringLiteral("QQuickText")] = [](const OdString&, qwxWindow&) { return nullptr; };
    return types;
}

// Whether following parents from window reaches ancestor; a cycle ends the search.
bool leadsTo(const qwxWindow& window, const qwxWindow& ancestor)
{
    const qwxWindow* current = &window;
    for (int steps = 0; current && steps < 32; ++steps, current = current->GetParent()) {
        if (current == &ancestor)
            return true;
    }
    return false;
}

bool isLoader(const QObject* object)
{
    return object && object->inherits("QQuickLoader");
}

// Deferred loads, zero timers and deleteLater.
void processPendingEvents()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

class Scenario
{
public:
    Scenario(std::uint32_t seed, bool trace);

    void run(int operations);

private:
    using Operation = void (Scenario::*)();
    struct Entry
    {
        const char* name;
        int weight;
        Operation run;
    };
    static const std::vector<Entry>& operations();
    const Entry& pickOperation();

    void findWindow();
    void lookUpTyped();
    void callWrapper();
    void connect();
    void emitSignal();
    void setProperty();
    void deleteItem();
    void flipLoader();
    void callDialog();
    void repopulate();
    void reloadPanelQml();
    void recreateDialog();
    void recreatePanelHost();
    void addPanel();
    void reparentPanel();
    void dropPanel();
    void useTimer();
    void changeTree();
    void changeDocuments();
    void processEvents();

    // What every handler does: it reads its event and calls back into the library.
    void hear(qwxEvent& event);
    void react(qwxEvent& event);
    // What dialog code does in doEventTableInit.
    void bind(QmlChildList& list);
    CallContext context();

    void makeDialog();
    void makePanelHost();
    // Drops the panels whose parents lead to window and the timers it owns.
    void dropDependents(const qwxWindow& window);

    std::vector<qwxWindow*> hosts() const;
    // The hosts and the loose panels: those that outlive what is parented to them.
    std::vector<qwxWindow*> parents() const;
    std::vector<qwxWindow*> windows() const;
    qwxWindow* anyHost();
    qwxWindow* anyWindow();
    std::vector<QObject*> items();
    std::vector<QObject*> namedItems();

    // Destroyed bottom up: timers and panels before the hosts they depend on,
    // hosts before their QML, the QML before its engine, the handlers' state last.
    Rng m_rng;
    const bool m_trace;
    int m_depth = 0;
    // The application: services for the CAD combos, with dialogs answered at
    // random, and the documents the line type combos follow.
    quickhost::QuickHost m_host;
    QQmlEngine m_engine;
    RandomQml m_qml;
    TreeModelRun m_tree;
    std::unique_ptr<QObject> m_dialogRoot;
    PanelApplication m_application;
    std::unique_ptr<test::TestDialog> m_dialog;
    std::unique_ptr<BindingPanel> m_panelHost;
    std::vector<std::unique_ptr<qwxPanel>> m_panels;
    std::vector<std::pair<const qwxWindow*, std::unique_ptr<qwxTimer>>> m_timers;
};

Scenario::Scenario(std::uint32_t seed, bool trace)
    : m_rng(seed)
    , m_trace(trace)
    , m_qml(m_rng)
    , m_application(m_engine)
{
    m_engine.addImportPath(test::qmlImportDir());
    m_host.dialogFactory().setupMessageBoxFaker([](const wxString&, const wxString&, int, wxWindow*) { return 4; });
    m_host.dialogFactory().setupColorDialogFaker([this](const OdCmColor&, unsigned int) -> std::optional<OdCmColor> {
        if (m_rng.percent(30))
            return std::nullopt;
        OdCmColor color;
        if (m_rng.percent(50))
            color.setColorIndex(std::uint16_t(m_rng.below(258)));
        else
            color.setRGB(std::uint8_t(m_rng.below(3)), 7, std::uint8_t(m_rng.below(3)));
        return color;
    });
    m_host.dialogFactory().setupLineTypeLoaderFaker([this](const QStringList& offered) -> std::optional<QStringList> {
        if (m_rng.percent(30))
            return std::nullopt;
        QStringList picked;
        for (const QString& name : offered) {
            if (m_rng.percent(20))
                picked.append(name);
        }
        return picked;
    });
    m_dialogRoot = createQml(m_engine, m_qml.dialog());
    m_application.load(m_qml.panel());
    makeDialog();
    makePanelHost();
    processPendingEvents();
}

const std::vector<Scenario::Entry>& Scenario::operations()
{
    static const std::vector<Entry> table{
        {"findWindow", 8, &Scenario::findWindow},
        {"lookUpTyped", 4, &Scenario::lookUpTyped},
        {"callWrapper", 24, &Scenario::callWrapper},
        {"connect", 8, &Scenario::connect},
        {"emitSignal", 12, &Scenario::emitSignal},
        {"setProperty", 6, &Scenario::setProperty},
        {"deleteItem", 3, &Scenario::deleteItem},
        {"flipLoader", 4, &Scenario::flipLoader},
        {"callDialog", 4, &Scenario::callDialog},
        {"repopulate", 3, &Scenario::repopulate},
        {"reloadPanelQml", 2, &Scenario::reloadPanelQml},
        {"recreateDialog", 1, &Scenario::recreateDialog},
        {"recreatePanelHost", 1, &Scenario::recreatePanelHost},
        {"addPanel", 3, &Scenario::addPanel},
        {"reparentPanel", 3, &Scenario::reparentPanel},
        {"dropPanel", 1, &Scenario::dropPanel},
        {"useTimer", 2, &Scenario::useTimer},
        {"processEvents", 6, &Scenario::processEvents},
        {"changeTree", 5, &Scenario::changeTree},
        {"changeDocuments", 2, &Scenario::changeDocuments},
    };
    return table;
}

const Scenario::Entry& Scenario::pickOperation()
{
    static const int total = [] {
        int sum = 0;
        for (const Entry& entry : operations())
            sum += entry.weight;
        return sum;
    }();
    int draw = m_rng.below(total);
    for (const Entry& entry : operations()) {
        if (draw < entry.weight)
            return entry;
        draw -= entry.weight;
    }
    return operations().back();
}

void Scenario::run(int count)
{
    for (int step = 0; step < count; ++step) {
        const Entry& operation = pickOperation();
        if (m_trace)
            std::fprintf(stderr, "stress:   %d %s\n", step, operation.name);
        (this->*operation.run)();
    }
    processPendingEvents();
}

void Scenario::findWindow()
{
    if (qwxWindow* window = anyWindow())
        window->FindWindow(qut::odFromQt(lookupName(m_rng)));
}

void Scenario::lookUpTyped()
{
    if (qwxWindow* host = anyHost())
        stress::lookUpTyped(*host->qmlChildren(qwxWindow::OwnListOnly), qut::odFromQt(lookupName(m_rng)), m_rng);
}

void Scenario::callWrapper()
{
    if (qwxWindow* window = anyWindow())
        stress::callWrapper(*window, context());
}

void Scenario::connect()
{
    qwxWindow* host = anyHost();
    if (!host)
        return;
    const QString name = m_rng.percent(30) ? QStringLiteral("wxID_ANY") : lookupName(m_rng);
    connectRandomly(*host->qmlChildren(qwxWindow::OwnListOnly), qut::odFromQt(name), anyWindow(), context());
}

void Scenario::emitSignal()
{
    const std::vector<QObject*> targets = m_rng.percent(70) ? namedItems() : items();
    if (!targets.empty())
        emitOnItem(*m_rng.pick(targets), m_rng);
}

void Scenario::setProperty()
{
    const std::vector<QObject*> targets = namedItems();
    if (!targets.empty())
        setOnItem(*m_rng.pick(targets), m_rng);
}

// A Qt Quick Controls pane listens to the implicit size of its first content
// child and keeps listening when that child is deleted from outside: the pane's
// destructor then reads freed memory (Qt 5.15), whatever the library does.
bool isPaneContent(const QObject& object)
{
    const auto* item = qobject_cast<const QQuickItem*>(&object);
    const QQuickItem* content = item ? item->parentItem() : nullptr;
    const QQuickItem* pane = content ? content->parentItem() : nullptr;
    return pane && pane->inherits("QQuickPane") && pane->property("contentItem").value<QQuickItem*>() == content;
}

// Only items of the generated QML: a control's own parts and a Loader's item
// belong to Qt, which doesn't expect them deleted from outside.
void Scenario::deleteItem()
{
    std::vector<QObject*> victims;
    const std::vector<QString>& names = itemNames();
    for (QObject* item : namedItems()) {
        const bool generated = std::find(names.begin(), names.end(), item->objectName()) != names.end();
        if (generated && qobject_cast<QQuickItem*>(item) && item->parent() && !isLoader(item->parent()) &&
            !isPaneContent(*item))
            victims.push_back(item);
    }
    if (victims.empty())
        return;
    QObject* victim = m_rng.pick(victims);
    if (m_rng.percent(50))
        delete victim;
    else
        victim->deleteLater();
}

void Scenario::flipLoader()
{
    std::vector<QObject*> loaders;
    for (QObject* item : items()) {
        if (isLoader(item))
            loaders.push_back(item);
    }
    if (loaders.empty())
        return;
    QObject& loader = *m_rng.pick(loaders);
    const QList<QQmlComponent*> components = loader.findChildren<QQmlComponent*>(QString(), Qt::FindDirectChildrenOnly);
    if (m_rng.percent(40) || components.isEmpty())
        loader.setProperty("active", !loader.property("active").toBool());
    else if (m_rng.percent(10))
        loader.setProperty("sourceComponent", QVariant::fromValue<QQmlComponent*>(nullptr));
    else
        loader.setProperty("sourceComponent", QVariant::fromValue(components.at(m_rng.below(components.size()))));
}

void Scenario::callDialog()
{
    if (!m_dialog)
        return;
    test::TestDialog& dialog = *m_dialog;
    switch (m_rng.below(8)) {
    case 0: dialog.reloadContent(); break;
    case 1: dialog.Show(); break;
    case 2: ShowModal(&dialog); break;
    case 3: dialog.EndDialog(m_rng.index()); break;
    case 4: EndModal(m_rng.percent(10) ? nullptr : &dialog, m_rng.index()); break;
    case 5:
        dialog.SetTitle(qut::wxFromQt(m_rng.text()));
        (void)(dialog.IsModal() || dialog.isReady() || dialog.waitForExposed());
        (void)(dialog.GetReturnCode() + dialog.GetExtraStyle());
        dialog.engine();
        break;
    case 6:
        dialog.SetMinSize(wxSize(m_rng.index(), m_rng.index()));
        dialog.SetExtraStyle(m_rng.index());
        dialog.GetBestSize();
        break;
    case 7:
        if (m_rng.percent(30))
            dialog.setInitDialogFunctor({});
        else
            dialog.setInitDialogFunctor([this](qwxInitDialogEvent& event) { hear(event); });
        break;
    }
}

void Scenario::repopulate()
{
    qwxWindow* host = anyHost();
    if (!host)
        return;
    QmlChildList& list = *host->qmlChildren(qwxWindow::OwnListOnly);
    switch (m_rng.below(5)) {
    case 0:
        if (QObject* root = host->root())
            list.populate(*root);
        break;
    case 1: list.reset(); break;
    case 2: list.resetCallbacks(); break;
    case 3:
        // Without a root doLoadContent dereferences null; the hosts check before they call it.
        if (host->root())
            host->doLoadContent(list);
        break;
    case 4:
        if (m_panelHost && m_rng.percent(50))
            m_panelHost->loadContent();
        else if (m_panelHost)
            m_panelHost->onQmlReloaded();
        break;
    }
}

// The application replaces its panel's QML, and mostly tells the panel.
void Scenario::reloadPanelQml()
{
    m_application.load(m_qml.panel());
    if (m_panelHost && m_rng.percent(70))
        m_panelHost->onQmlReloaded();
}

// The dialog goes with its connections live; sometimes its QML goes after it.
void Scenario::recreateDialog()
{
    if (m_dialog) {
        dropDependents(*m_dialog);
        m_dialog.reset();
    }
    if (m_rng.percent(20))
        m_dialogRoot = createQml(m_engine, m_qml.dialog());
    if (m_rng.percent(80))
        makeDialog();
}

void Scenario::recreatePanelHost()
{
    if (m_panelHost && m_rng.percent(30)) {
        m_panelHost->setPanel(m_rng.percent(50) ? &m_application : nullptr);
        return;
    }
    if (m_panelHost) {
        dropDependents(*m_panelHost);
        m_panelHost.reset();
    }
    if (m_rng.percent(80))
        makePanelHost();
}

void Scenario::addPanel()
{
    const std::vector<qwxWindow*> candidates = parents();
    if (m_panels.size() >= 6 || candidates.empty())
        return;
    qwxWindow& parent = *m_rng.pick(candidates);
    const QString name = lookupName(m_rng);
    if (m_rng.percent(50)) {
        m_panels.push_back(std::make_unique<qwxPanel>(qut::odFromQt(name), parent));
        return;
    }
    m_panels.push_back(std::make_unique<qwxPanel>(parent));
    wut::loadPanel(m_rng.percent(5) ? nullptr : m_panels.back().get(), name);
}

// Loose panels move among the hosts and each other; a list's panels among
// their list and its host, since the list destroys them all at once.
void Scenario::reparentPanel()
{
    if (!m_panels.empty() && m_rng.percent(50)) {
        m_rng.pick(m_panels)->Reparent(*m_rng.pick(parents()));
        return;
    }
    qwxWindow* host = anyHost();
    if (!host)
        return;
    std::vector<qwxWindow*> targets{host};
    host->qmlChildren(qwxWindow::OwnListOnly)->forEachChild([&targets](qwxWindow& window) {
        if (dynamic_cast<qwxPanel*>(&window))
            targets.push_back(&window);
    });
    if (targets.size() > 1)
        static_cast<qwxPanel*>(targets[1 + m_rng.below(int(targets.size()) - 1)])->Reparent(*m_rng.pick(targets));
}

void Scenario::dropPanel()
{
    if (!m_panels.empty())
        dropDependents(*m_rng.pick(m_panels));
}

void Scenario::useTimer()
{
    qwxWindow* host = anyHost();
    if (!host)
        return;
    QmlChildList& list = *host->qmlChildren(qwxWindow::OwnListOnly);
    const int id = m_rng.below(3) - 1;
    switch (m_rng.below(4)) {
    case 0:
        if (m_timers.size() < 4) {
            auto timer =
                m_rng.percent(50) ? std::make_unique<qwxTimer>(host, id) : std::make_unique<qwxTimer>(&list, id);
            timer->Start(0);
            m_timers.emplace_back(host, std::move(timer));
        }
        break;
    case 1: list.connectToTimerEvent(*host, id, context().handler<qwxTimerEvent>()); break;
    case 2: list.onTimer(id); break;
    case 3:
        if (!m_timers.empty())
            m_timers.erase(m_timers.begin() + m_rng.below(int(m_timers.size())));
        break;
    }
}

void Scenario::changeTree()
{
    m_tree.step(m_rng);
}

void Scenario::processEvents()
{
    processPendingEvents();
}

// Deep enough for a handler whose call raises another event, not for a loop.
void Scenario::hear(qwxEvent& event)
{
    if (m_depth >= 2)
        return;
    ++m_depth;
    react(event);
    --m_depth;
}

void Scenario::react(qwxEvent& event)
{
    event.GetId();
    event.GetClientObject();
    event.GetClientData();
    if (auto* command = dynamic_cast<qwxCommandEvent*>(&event)) {
        command->GetString();
        (void)(command->GetSelection() + command->IsChecked() + command->getMenuId());
    }
    qwxWindow* source = event.GetEventObject();
    if (!source || m_rng.percent(30))
        return;
    if (m_rng.percent(50))
        source->FindWindow(qut::odFromQt(lookupName(m_rng)));
    else
        stress::callWrapper(*source, context());
}

void Scenario::bind(QmlChildList& list)
{
    for (int count = m_rng.below(4); count > 0; --count) {
        const QString name = m_rng.percent(30) ? QStringLiteral("wxID_ANY") : lookupName(m_rng);
        connectRandomly(list, qut::odFromQt(name), anyWindow(), context());
    }
}

// Opens, activates and closes drawings, the last one too, under the line type combos' model.
void Scenario::changeDocuments()
{
    OdApDocManager& documents = m_host.documents();
    const int count = documents.documentCount();
    switch (count == 0 ? 0 : m_rng.below(3)) {
    case 0: {
        OdDbDatabasePtr database = OdDbDatabase::createObject();
        for (int i = m_rng.below(4); i > 0; --i)
            database->addLinetype(qut::odFromQt(QStringLiteral("LT%1").arg(i)), OdString(), {0.5, -0.25});
        documents.createDocument("Drawing", database);
        break;
    }
    case 1: documents.activateDocument(documents.documentAt(m_rng.below(count))); break;
    default: documents.closeDocument(documents.documentAt(m_rng.below(count))); break;
    }
}

CallContext Scenario::context()
{
    return CallContext{m_rng, [this](qwxEvent& event) { hear(event); }};
}

void Scenario::makeDialog()
{
    m_dialog = std::make_unique<test::TestDialog>(qobject_cast<QQuickItem*>(m_dialogRoot.get()));
    m_dialog->bind = [this](QmlChildList& list) { bind(list); };
    m_dialog->markEventTableLoaded = m_rng.percent(10);
}

void Scenario::makePanelHost()
{
    m_panelHost = std::make_unique<BindingPanel>([this](QmlChildList& list) { bind(list); });
    m_panelHost->setCustomTypes(anyCustomTypes(m_rng));
    m_panelHost->setPanel(&m_application);
    m_panelHost->loadContent();
}

void Scenario::dropDependents(const qwxWindow& window)
{
    m_timers.erase(std::remove_if(m_timers.begin(), m_timers.end(),
                                  [&window](const auto& timer) { return timer.first == &window; }),
                   m_timers.end());
    // Partitioned before anything is destroyed: the test follows parents that may be among the dropped.
    const auto dropped = std::stable_partition(m_panels.begin(), m_panels.end(),
                                               [&window](const auto& panel) { return !leadsTo(*panel, window); });
    m_panels.erase(dropped, m_panels.end());
}

std::vector<qwxWindow*> Scenario::hosts() const
{
    std::vector<qwxWindow*> found;
    if (m_dialog)
        found.push_back(m_dialog.get());
    if (m_panelHost)
        found.push_back(m_panelHost.get());
    return found;
}

std::vector<qwxWindow*> Scenario::parents() const
{
    std::vector<qwxWindow*> found = hosts();
    for (const auto& panel : m_panels)
        found.push_back(panel.get());
    return found;
}

std::vector<qwxWindow*> Scenario::windows() const
{
    std::vector<qwxWindow*> found = parents();
    for (qwxWindow* host : hosts())
        host->qmlChildren(qwxWindow::OwnListOnly)->forEachChild([&found](qwxWindow& window) {
            found.push_back(&window);
        });
    return found;
}

qwxWindow* Scenario::anyHost()
{
    const std::vector<qwxWindow*> found = hosts();
    return found.empty() ? nullptr : m_rng.pick(found);
}

qwxWindow* Scenario::anyWindow()
{
    const std::vector<qwxWindow*> found = windows();
    return found.empty() ? nullptr : m_rng.pick(found);
}

std::vector<QObject*> Scenario::items()
{
    std::vector<QObject*> found;
    for (QObject* root : {m_dialogRoot.get(), m_application.root()}) {
        if (!root)
            continue;
        found.push_back(root);
        const QList<QObject*> below = root->findChildren<QObject*>();
        found.insert(found.end(), below.begin(), below.end());
    }
    return found;
}

std::vector<QObject*> Scenario::namedItems()
{
    std::vector<QObject*> found = items();
    found.erase(std::remove_if(found.begin(), found.end(), [](QObject* item) { return item->objectName().isEmpty(); }),
                found.end());
    return found;
}

} // namespace

void runScenario(std::uint32_t seed, int operations, bool trace)
{
    Scenario(seed, trace).run(operations);
}

} // namespace dbr::stress
