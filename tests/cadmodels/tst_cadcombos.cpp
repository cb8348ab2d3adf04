#include <support/cmcolors.h>
#include <support/hostedqml.h>
#include <support/itemwindow.h>
#include <support/paths.h>
#include <support/testdialog.h>

#include <dlgbridge/cadmodels/colormodel.h>
#include <dlgbridge/cadmodels/linetypemodel.h>
#include <dlgbridge/cadmodels/lineweightmodel.h>
#include <dlgbridge/cadmodels/qwxcolorcombobox.h>
#include <dlgbridge/cadmodels/qwxlinetypecombobox.h>
#include <dlgbridge/core/qmlchildlist.h>
#include <dlgbridge/core/qtcontrolmodels.h>

#include <quickhost/quickhost.h>

#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

#include <wx/defs.h>

#include <ca/CaApp.h>
#include <oda/OdDbDatabase.h>
#include <qut/qtconversions.h>

#include <functional>
#include <memory>

using namespace dbr;
using namespace dbr::test;

namespace {

int currentIndexOf(QObject* item)
{
    return item->property("currentIndex").toInt();
}

int countOf(QObject* item)
{
    return item->property("count").toInt();
}

} // namespace

class tst_CadCombos : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void combos_shareOneModelOfEachKind_butNotTheirSelection();
    void colourLoadRow_opensTheDialog_andShowsTheColourChosen();
    void colourDialogCancelled_goesBackAndAddsNothing();
    void refusedColour_isNotAdded();
    void lineTypeLoadRow_byKey_loadsAndShowsTheLineType();
    void lineTypeLoaderCancelled_goesBackToTheLineTypeShown();
    void lineTypeLoadRow_fromThePopup_announcesOnlyTheLineTypeLoaded();
    void lineTypeCombos_followTheCurrentDocument();
    void lineWeightCombo_tellsItsModel();
    void models_dieAfterTheItemsLetGo();
    void withoutModels_combosAnswerNeutrally();

private:
    // Runs the combos dialog modally, with body played in it, then OK.
    void runDialog(const std::function<void(TestDialog&)>& body);

    template<typename Wrapper>
    static Wrapper* wrapper(TestDialog& dialog, const char* name)
    {
        return dynamic_cast<Wrapper*>(dialog.FindWindow(name));
    }

    std::unique_ptr<quickhost::QuickHost> m_host;
};

void tst_CadCombos::init()
{
    m_host = std::make_unique<quickhost::QuickHost>(QStringList{qmlImportDir()});
    ca::curDb()->addLinetype("Hidden", OdString(), {0.25, -0.125});
}

void tst_CadCombos::cleanup()
{
    m_host.reset();
}

void tst_CadCombos::runDialog(const std::function<void(TestDialog&)>& body)
{
    TestDialog dialog;
    QVERIFY(
        wut::doLoadDialog(&dialog, nullptr, testDataUrl(QStringLiteral("cadcombos.qml")), NotResizable, {}, nullptr));
    dialog.script = [&body](TestDialog& shown) {
        if (shown.waitForExposed())
            body(shown);
        EndModal(&shown, wxID_OK);
    };
    QCOMPARE(ShowModal(&dialog), wxID_OK);
}

void tst_CadCombos::combos_shareOneModelOfEachKind_butNotTheirSelection()
{
    runDialog([](TestDialog& dialog) {
        auto* color = wrapper<qwxColorComboBox>(dialog, "color");
        auto* plotColor = wrapper<qwxColorComboBox>(dialog, "plotColor");
        auto* lineType = wrapper<qwxLineTypeComboBox>(dialog, "lineType");
        auto* plotLineType = wrapper<qwxLineTypeComboBox>(dialog, "plotLineType");
        QVERIFY(color && plotColor && lineType && plotLineType);
        QCOMPARE(color->typeName(), QStringLiteral("qwxColorComboBox"));
        QCOMPARE(lineType->typeName(), QStringLiteral("qwxLineTypeComboBox"));

        QVERIFY(color->model());
        QCOMPARE(color->model(), plotColor->model());
        QCOMPARE(color->model(), dialog.models()->colorModel.get());
        QCOMPARE(lineType->model(), plotLineType->model());
        QCOMPARE(dialog.item("color")->property("model").value<QObject*>(), color->model());
        QCOMPARE(dialog.item("plotLineType")->property("model").value<QObject*>(), lineType->model());

        // A colour added through one combo is listed in the other, which keeps its own row.
        plotColor->setColor(indexed(5));
        color->setColor(rgb(200, 100, 50));
        QCOMPARE(countOf(dialog.item("plotColor")), 11);
        QCOMPARE(currentIndexOf(dialog.item("color")), 9);
        QCOMPARE(currentIndexOf(dialog.item("plotColor")), 6);
        QCOMPARE(color->color(), rgb(200, 100, 50));
        QCOMPARE(plotColor->color(), indexed(5));
        // The model's own row isn't the combos' business.
        QCOMPARE(color->model()->getCurrentIndex(), -1);
        plotColor->setColor(indexed(256).color());
        QCOMPARE(currentIndexOf(dialog.item("plotColor")), 0);

        const OdDbObjectId hidden = ca::curDb()->getLinetypeId("Hidden");
        lineType->setSelection(hidden);
        QCOMPARE(lineType->getLinetype(), hidden);
        QCOMPARE(plotLineType->getLinetype(), ca::curDb()->getLinetypeContinuousId());
        lineType->setSelection(OdDbObjectId(ca::curDb(), 999));
        QCOMPARE(lineType->getLinetype(), hidden);
        // A null id finds the first special row, which has no line type.
        lineType->setSelection(OdDbObjectId::kNull);
        QCOMPARE(currentIndexOf(dialog.item("lineType")), 2);
        QVERIFY(lineType->getLinetype().isNull());
    });
}

void tst_CadCombos::colourLoadRow_opensTheDialog_andShowsTheColourChosen()
{
    OdCmColor asked;
    m_host->dialogFactory().setupColorDialogFaker([&asked](const OdCmColor& current, unsigned int) {
        asked = current;
        return std::optional<OdCmColor>(rgb(255, 128, 0));
    });
    runDialog([&asked](TestDialog& dialog) {
        auto* color = wrapper<qwxColorComboBox>(dialog, "color");
        color->setColor(indexed(3));
        QObject* item = dialog.item("color");

        pickRow(item, QStringLiteral("colorRow9"));

        QCOMPARE(asked, indexed(3));
        QTRY_COMPARE(currentIndexOf(item), 9);
        QCOMPARE(color->color(), rgb(255, 128, 0));
        QCOMPARE(item->property("displayText").toString(), QStringLiteral("255,128,0"));
        QCOMPARE(countOf(dialog.item("plotColor")), 11);
    });
}

void tst_CadCombos::colourDialogCancelled_goesBackAndAddsNothing()
{
    m_host->dialogFactory().setupColorDialogFaker([](const OdCmColor&, unsigned int) { return std::nullopt; });
    runDialog([](TestDialog& dialog) {
        auto* color = wrapper<qwxColorComboBox>(dialog, "color");
        color->setColor(indexed(3));
        QObject* item = dialog.item("color");
        QSignalSpy reset(color->model(), &ColorModel::modelReset);
        QSignalSpy inserted(color->model(), &ColorModel::rowsInserted);
        QVERIFY(reset.isValid());
        QVERIFY(inserted.isValid());

        pickRow(item, QStringLiteral("colorRow9"));

        QTRY_COMPARE(currentIndexOf(item), 4);
        QCOMPARE(countOf(item), 10);
        QCOMPARE(color->color(), indexed(3));
        QCOMPARE(reset.count() + inserted.count(), 0);
    });
}

void tst_CadCombos::refusedColour_isNotAdded()
{
    m_host->dialogFactory().setupColorDialogFaker(
        [](const OdCmColor&, unsigned int) { return std::optional<OdCmColor>(OdCmColor(OdCmColor::kNone)); });
    runDialog([](TestDialog& dialog) {
        QObject* item = dialog.item("color");
        wrapper<qwxColorComboBox>(dialog, "color")->setColor(indexed(2));

        pickRow(item, QStringLiteral("colorRow9"));

        // A colour the controller refuses resolves to the first row.
        QTRY_COMPARE(currentIndexOf(item), 0);
        QCOMPARE(countOf(item), 10);
    });
}

void tst_CadCombos::lineTypeLoadRow_byKey_loadsAndShowsTheLineType()
{
    QStringList offered;
    m_host->dialogFactory().setupLineTypeLoaderFaker([&offered](const QStringList& names) {
        offered = names;
        return QStringList{"DASHED"};
    });
    runDialog([&offered](TestDialog& dialog) {
        auto* lineType = wrapper<qwxLineTypeComboBox>(dialog, "lineType");
        auto* plotLineType = wrapper<qwxLineTypeComboBox>(dialog, "plotLineType");
        const OdDbObjectId hidden = ca::curDb()->getLinetypeId("Hidden");
        lineType->setSelection(hidden);
        plotLineType->setSelection(hidden);
        auto* item = qobject_cast<QQuickItem*>(dialog.item("lineType"));
        item->forceActiveFocus();

        // Down from the last line type is the load row.
        QTest::keyClick(item->window(), Qt::Key_Down);

        QVERIFY(offered.contains(QStringLiteral("DASHED")));
        QTRY_COMPARE(lineType->getLinetype(), ca::curDb()->getLinetypeId("DASHED"));
        QCOMPARE(item->property("displayText").toString(), QStringLiteral("DASHED"));
        QCOMPARE(countOf(item), 4);
        // The other combo stays on the line type it showed, whose row moved down.
        QCOMPARE(plotLineType->getLinetype(), hidden);
        QCOMPARE(currentIndexOf(dialog.item("plotLineType")), 2);
    });
}

void tst_CadCombos::lineTypeLoaderCancelled_goesBackToTheLineTypeShown()
{
    m_host->dialogFactory().setupLineTypeLoaderFaker([](const QStringList&) { return std::nullopt; });
    runDialog([](TestDialog& dialog) {
        auto* lineType = wrapper<qwxLineTypeComboBox>(dialog, "lineType");
        const OdDbObjectId hidden = ca::curDb()->getLinetypeId("Hidden");
        lineType->setSelection(hidden);

        pickRow(dialog.item("lineType"), QStringLiteral("lineTypeRow2"));

        QTRY_COMPARE(currentIndexOf(dialog.item("lineType")), 1);
        QCOMPARE(lineType->getLinetype(), hidden);
        QCOMPARE(countOf(dialog.item("lineType")), 3);
    });
}

void tst_CadCombos::lineTypeLoadRow_fromThePopup_announcesOnlyTheLineTypeLoaded()
{
    m_host->dialogFactory().setupLineTypeLoaderFaker([](const QStringList&) { return QStringList{"PHANTOM"}; });
    QStringList heard;
    TestDialog dialog;
    QVERIFY(
        wut::doLoadDialog(&dialog, nullptr, testDataUrl(QStringLiteral("cadcombos.qml")), NotResizable, {}, nullptr));
    dialog.bind = [&heard, &dialog](QmlChildList& list) {
        list.connectToChoiceEvent("lineType", [&heard, &dialog](qwxCommandEvent&) {
            const OdDbSymbolTableRecordPtr record = OdDbSymbolTableRecord::cast(
                dynamic_cast<qwxLineTypeComboBox*>(dialog.FindWindow("lineType"))->getLinetype().openObject());
            heard.append(record ? qut::toQt(record->getName()) : QStringLiteral("none"));
        });
    };
    dialog.script = [&heard](TestDialog& shown) {
        if (shown.waitForExposed()) {
            pickRow(shown.item("lineType"), QStringLiteral("lineTypeRow2"));
            QTRY_COMPARE(heard, QStringList{"PHANTOM"});
            QCOMPARE(currentIndexOf(shown.item("lineType")), 2);
        }
        EndModal(&shown, wxID_OK);
    };
    QCOMPARE(ShowModal(&dialog), wxID_OK);
}

void tst_CadCombos::lineTypeCombos_followTheCurrentDocument()
{
    OdApDocManager& documents = m_host->documents();
    OdApDocument* first = documents.curDocument();
    runDialog([&](TestDialog& dialog) {
        auto* lineType = wrapper<qwxLineTypeComboBox>(dialog, "lineType");
        lineType->setSelection(ca::curDb()->getLinetypeId("Hidden"));

        OdDbDatabasePtr other = OdDbDatabase::createObject();
        other->addLinetype("Dot", OdString(), {0, -0.25});
        other->addLinetype("Hidden", OdString(), {0.25, -0.125});
        documents.createDocument("Drawing2", other);

        QCOMPARE(countOf(dialog.item("lineType")), 4);
        QCOMPARE(lineType->getLinetype(), other->getLinetypeId("Hidden"));
        documents.closeDocument(documents.curDocument());
        QCOMPARE(documents.curDocument(), first);
        QCOMPARE(lineType->getLinetype(), first->database()->getLinetypeId("Hidden"));
        documents.closeDocument(first);
        QCOMPARE(countOf(dialog.item("lineType")), 0);
        QVERIFY(lineType->getLinetype().isNull());
    });
}

void tst_CadCombos::lineWeightCombo_tellsItsModel()
{
    LineWeightModel model(m_host->guiController(), LineWeightModelParams(), QSize(-1, -1));
    QSignalSpy notify(&model, &LineWeightModel::notifyComboUpdateManager);
    QVERIFY(notify.isValid());
    runDialog([&model](TestDialog& dialog) {
        QObject* item = dialog.item("lineWeight");
        item->setProperty("model", QVariant::fromValue<QObject*>(&model));
        QCOMPARE(item->property("displayText").toString(), QStringLiteral("ByLayer"));

        pickRow(item, QStringLiteral("lineWeightRow10"));

        QTRY_COMPARE(model.getCurrentIndex(), 10);
        QCOMPARE(item->property("displayText").toString(), QStringLiteral("0.25 mm"));
        item->setProperty("model", QVariant());
    });
    QCOMPARE(notify.count(), 1);
}

void tst_CadCombos::models_dieAfterTheItemsLetGo()
{
    QStringList seen;
    {
        TestDialog dialog;
        QVERIFY(wut::doLoadDialog(&dialog, nullptr, testDataUrl(QStringLiteral("cadcombos.qml")), NotResizable, {},
                                  nullptr));
        dialog.script = [](TestDialog& shown) { EndModal(&shown, wxID_OK); };
        QCOMPARE(ShowModal(&dialog), wxID_OK);
        QPointer<QObject> colorItem = dialog.item("color");
        QPointer<QObject> lineTypeItem = dialog.item("lineType");
        const auto watch = [&seen](QObject* model, const QPointer<QObject>& item, const QString& what) {
            QObject::connect(model, &QObject::destroyed, [&seen, item, model, what] {
                seen.append(QStringLiteral("%1 model goes, item %2")
                                .arg(what, !item ? QStringLiteral("gone")
                                           : item->property("model").value<QObject*>() == model
                                               ? QStringLiteral("still holds it")
                                               : QStringLiteral("let go")));
            });
        };
        watch(dialog.models()->colorModel.get(), colorItem, QStringLiteral("colour"));
        watch(dialog.models()->lineTypeModel.get(), lineTypeItem, QStringLiteral("line type"));
    }
    QCOMPARE(seen, (QStringList{"colour model goes, item let go", "line type model goes, item let go"}));
}

void tst_CadCombos::withoutModels_combosAnswerNeutrally()
{
    HostedQml hosted(QStringLiteral("cadcombos.qml"));
    QCOMPARE(hosted.host.models(), nullptr);
    auto* color = hosted.host.list().child<qwxColorComboBox>("color");
    auto* lineType = hosted.host.list().child<qwxLineTypeComboBox>("lineType");
    QVERIFY(color && lineType);

    QVERIFY(!color->model());
    QVERIFY(!lineType->model());
    QVERIFY(hosted.item("color")->property("model").isValid());
    QCOMPARE(hosted.item("color")->property("model").value<QObject*>(), nullptr);
    color->setColor(indexed(3));
    color->setColor(0xC3000003ul);
    lineType->setSelection(ca::curDb()->getLinetypeContinuousId());
    QCOMPARE(currentIndexOf(hosted.item("color")), -1);
    QCOMPARE(color->color(), OdCmColor());
    QVERIFY(lineType->getLinetype().isNull());
}

QTEST_MAIN(tst_CadCombos)
#include "tst_cadcombos.moc"
