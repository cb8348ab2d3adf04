#include <dlgbridge/hosting/panellistenerhandler.h>
#include <dlgbridge/hosting/qtpanelactivatelistener.h>

#include <QTest>

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

const QUrl layers(QStringLiteral("qrc:/panels/Layers.qml"));
const QUrl sheets(QStringLiteral("qrc:/panels/Sheets.qml"));

} // namespace

class tst_PanelListeners : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listeners_areCalledOncePerUrlInRegistrationOrder();
};

void tst_PanelListeners::listeners_areCalledOncePerUrlInRegistrationOrder()
{
    QStringList log;
    RecordingListener first("first", log), second("second", log), third("third", log), stranger("stranger", log);
    PanelListenerHandler handler;
    handler.activatePanel(true, layers); // nobody yet
    for (RecordingListener* listener : {&second, &first, &second, &third})
        handler.addPanelListener(listener, layers);
    handler.addPanelListener(&first, sheets);

    handler.activatePanel(true, layers);
    handler.postLoaderActivation(false, layers);
    handler.activatePanel(false, sheets);
    QCOMPARE(log, QStringList({"second activate 1", "first activate 1", "third activate 1", "second loaded 0",
                               "first loaded 0", "third loaded 0", "first activate 0"}));

    log.clear();
    handler.removePanelListener(&first, layers);
    handler.removePanelListener(&stranger, layers);
    handler.removePanelListener(nullptr, layers);
    handler.removePanelListener(&second, sheets);
    handler.activatePanel(true, layers);
    QCOMPARE(log, QStringList({"second activate 1", "third activate 1"}));
}

QTEST_MAIN(tst_PanelListeners)
#include "tst_panellisteners.moc"
