#include <dlgbridge/services/isheetsetpanel.h>

#include <QTest>

#include <dst/OdSmSheet.h>
#include <oa/OaApp.h>
#include <oa/PanelManager.h>
#include <qut/qtconversions.h>

#include <memory>

using namespace dbr;

namespace {

class SheetSetPanel : public QObject, public ISheetSetPanel
{
public:
    bool openSheetSet(const OdString&) override { return false; }
    std::vector<dst::OdSmSheet*> selectedSheets() const override { return {}; }
    DlgNewSheetResult showNewSheetDialog() override { return DlgNewSheetResult({}, nullptr, DlgNewSheetResult::Created); }
};

} // namespace

class tst_SheetSetPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void lookup_findsThePanelBehindOthers_data();
    void lookup_findsThePanelBehindOthers();
};

void tst_SheetSetPanel::cleanup()
{
    oa::OaApp::s_app = nullptr;
}

void tst_SheetSetPanel::lookup_findsThePanelBehindOthers_data()
{
    QTest::addColumn<bool>("hasApp");
    QTest::addColumn<bool>("hasManager");
    QTest::addColumn<QString>("panelName");
    // "o" for another object, "s" for the sheet set panel, "0" for null.
    QTest::addColumn<QString>("objects");
    QTest::addColumn<int>("found");

    QTest::newRow("no application") << false << true << "SHEETSETS" << "s" << -1;
    QTest::newRow("no panel manager") << true << false << "SHEETSETS" << "s" << -1;
    QTest::newRow("panel not known") << true << true << "LAYERS" << "s" << -1;
    QTest::newRow("empty panel") << true << true << "SHEETSETS" << "" << -1;
    QTest::newRow("only other objects") << true << true << "SHEETSETS" << "o0o" << -1;
    QTest::newRow("first") << true << true << "SHEETSETS" << "so" << 0;
    QTest::newRow("behind others") << true << true << "SHEETSETS" << "o0os" << 3;
    QTest::newRow("the first of two") << true << true << "SHEETSETS" << "oss" << 1;
}

void tst_SheetSetPanel::lookup_findsThePanelBehindOthers()
{
    QFETCH(bool, hasApp);
    QFETCH(bool, hasManager);
    QFETCH(QString, panelName);
    QFETCH(QString, objects);
    QFETCH(int, found);

    oa::OaApp app;
    oa::PanelManager manager;
    std::vector<std::unique_ptr<QObject>> owned;
    std::vector<QObject*> listed;
    oa::PanelContainer& container = manager.addPanel(qut::odFromQt(panelName));
    for (QChar kind : objects) {
        if (kind == 's')
            owned.push_back(std::make_unique<SheetSetPanel>());
        else if (kind == 'o')
            owned.push_back(std::make_unique<QObject>());
        QObject* object = kind == '0' ? nullptr : owned.back().get();
        container.addObject(object);
        listed.push_back(object);
    }
    if (hasManager)
        app.setPanelManager(&manager);
    if (hasApp)
        oa::OaApp::s_app = &app;

    ISheetSetPanel* panel = ISheetSetPanel::getISheetSetPanelQt();
    QCOMPARE(panel, found < 0 ? nullptr : dynamic_cast<ISheetSetPanel*>(listed[std::size_t(found)]));
}

QTEST_MAIN(tst_SheetSetPanel)
#include "tst_sheetsetpanel.moc"
