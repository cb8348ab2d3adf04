#include <dlgbridge/services/isheetsetpanel.h>

#include <QTest>

#include <dst/OdSmSheet.h>
#include <oa/OaApp.h>
#include <oa/PanelManager.h>

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
    // "o" for another object, "s" for the sheet set panel, "0" for null.
    QTest::addColumn<QString>("objects");
    QTest::addColumn<int>("found");

    QTest::newRow("no application") << false << "s" << -1;
    QTest::newRow("only other objects") << true << "o0o" << -1;
    QTest::newRow("behind others") << true << "o0os" << 3;
    QTest::newRow("the first of two") << true << "oss" << 1;
}

void tst_SheetSetPanel::lookup_findsThePanelBehindOthers()
{
    QFETCH(bool, hasApp);
    QFETCH(QString, objects);
    QFETCH(int, found);

    oa::OaApp app;
    oa::PanelManager manager;
    std::vector<std::unique_ptr<QObject>> owned;
    std::vector<QObject*> listed;
    oa::PanelContainer& container = manager.addPanel(OdString("SHEETSETS"));
    for (QChar kind : objects) {
        if (kind == 's')
            owned.push_back(std::make_unique<SheetSetPanel>());
        else if (kind == 'o')
            owned.push_back(std::make_unique<QObject>());
        QObject* object = kind == '0' ? nullptr : owned.back().get();
        container.addObject(object);
        listed.push_back(object);
    }
    app.setPanelManager(&manager);
    if (hasApp)
        oa::OaApp::s_app = &app;

    ISheetSetPanel* panel = ISheetSetPanel::getISheetSetPanelQt();
    QCOMPARE(panel, found < 0 ? nullptr : dynamic_cast<ISheetSetPanel*>(listed[std::size_t(found)]));
}

QTEST_MAIN(tst_SheetSetPanel)
#include "tst_sheetsetpanel.moc"
