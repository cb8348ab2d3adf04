#include <dlgbridge/hosting/panellistenerhandler.h>
#include <dlgbridge/hosting/qtpanelactivatelistener.h>

#include <QTest>

#include <utility>

using namespace dbr;

namespace {

// Writes "name activate 1" or "name loaded 0" to a shared log.
class RecordingListener : public QtPanelActivateListener
{
public:
    RecordingListener(const QString& name, QStringList& log)
        : m_name(name)
        , m_log(log)
    {
    }
    void activatePanel(bool active) override { m_log << QStringLiteral("%1 activate %2").arg(m_name).arg(active); }
    void postLoaderActivation(bool active) override
    {
        m_log << QStringLiteral("%1 loaded %2").arg(m_name).arg(active);
    }

private:
    QString m_name;
    QStringList& m_log;
};

// Keeps the default postLoaderActivation.
class ActivationOnly : public QtPanelActivateListener
{
public:
    void activatePanel(bool) override { ++calls; }
    int calls = 0;
};

const QUrl layers(QStringLiteral("qrc:/panels/Layers.qml"));
const QUrl sheets(QStringLiteral("qrc:/panels/Sheets.qml"));

} // namespace

class tst_PanelListeners : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listeners_areCalledOncePerUrlInRegistrationOrder();
    void remove_keepsTheOrderOfTheRest();
    void entries_madeOnlyByAdding();
    void postLoaderActivation_defaultsToNothing();
    void copies_shareListenersAndMovesEmpty();
};

void tst_PanelListeners::listeners_areCalledOncePerUrlInRegistrationOrder()
{
    QStringList log;
    RecordingListener first("first", log);
    RecordingListener second("second", log);
    PanelListenerHandler handler;
    handler.addPanelListener(&second, layers);
    handler.addPanelListener(&first, layers);
    handler.addPanelListener(&second, layers);
    handler.addPanelListener(&first, sheets);

    handler.activatePanel(true, layers);
    handler.postLoaderActivation(false, layers);
    handler.activatePanel(false, sheets);
    QCOMPARE(log, QStringList({"second activate 1", "first activate 1", "second loaded 0", "first loaded 0",
                               "first activate 0"}));
}

void tst_PanelListeners::remove_keepsTheOrderOfTheRest()
{
    QStringList log;
    RecordingListener a("a", log), b("b", log), c("c", log), stranger("stranger", log);
    PanelListenerHandler handler;
    for (RecordingListener* listener : {&a, &b, &c})
        handler.addPanelListener(listener, layers);

    handler.removePanelListener(&b, layers);
    handler.removePanelListener(&stranger, layers);
    handler.removePanelListener(nullptr, layers);
    handler.removePanelListener(&a, sheets);
    handler.activatePanel(true, layers);
    QCOMPARE(log, QStringList({"a activate 1", "c activate 1"}));

    // The last one out leaves an empty entry behind.
    handler.removePanelListener(&a, layers);
    handler.removePanelListener(&c, layers);
    QCOMPARE(handler.listeners().count(layers), 1u);
    QVERIFY(handler.listeners().at(layers).empty());
}

void tst_PanelListeners::entries_madeOnlyByAdding()
{
    PanelListenerHandler handler;
    handler.activatePanel(true, layers);
    handler.postLoaderActivation(true, layers);
    handler.removePanelListener(nullptr, layers);
    QVERIFY(handler.listeners().empty());

    handler.addPanelListener(nullptr, sheets);
    QCOMPARE(handler.listeners().size(), 1u);
    QVERIFY(handler.listeners().at(sheets).empty());
    handler.activatePanel(true, sheets);
}

void tst_PanelListeners::postLoaderActivation_defaultsToNothing()
{
    ActivationOnly listener;
    PanelListenerHandler handler;
    handler.addPanelListener(&listener, layers);
    handler.postLoaderActivation(true, layers);
    QCOMPARE(listener.calls, 0);
    handler.activatePanel(true, layers);
    QCOMPARE(listener.calls, 1);
}

void tst_PanelListeners::copies_shareListenersAndMovesEmpty()
{
    QStringList log;
    RecordingListener listener("l", log);
    PanelListenerHandler original;
    original.addPanelListener(&listener, layers);

    PanelListenerHandler copy = original;
    copy.activatePanel(true, layers);
    original.activatePanel(false, layers);
    QCOMPARE(log, QStringList({"l activate 1", "l activate 0"}));

    PanelListenerHandler moved = std::move(original);
    QVERIFY(original.listeners().empty());
    PanelListenerHandler assigned;
    assigned = std::move(copy);
    QVERIFY(copy.listeners().empty());
    log.clear();
    original.activatePanel(true, layers);
    copy.activatePanel(true, layers);
    moved.activatePanel(true, layers);
    assigned.activatePanel(false, layers);
    QCOMPARE(log, QStringList({"l activate 1", "l activate 0"}));
}

QTEST_MAIN(tst_PanelListeners)
#include "tst_panellisteners.moc"
