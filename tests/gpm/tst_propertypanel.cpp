#include <dlgbridge/gpm/factoryfunction.h>
#include <dlgbridge/gpm/gpmtreedata.h>
#include <dlgbridge/gpm/gpmtreedatafactory.h>
#include <quickhost/propertypanelmodel.h>
#include <quickhost/quickhost.h>
#include <support/cmcolors.h>
#include <support/itemwindow.h>
#include <support/logrecorder.h>
#include <support/paths.h>
#include <support/properties.h>
#include <support/qmlfixture.h>

#include <QAbstractItemModelTester>
#include <QPointer>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <ca/CaApp.h>
#include <oa/PropertyType.h>
#include <oda/OdDbDatabase.h>
#include <qut/qtconversions.h>

#include <memory>
#include <vector>

using namespace dbr;
using namespace dbr::test;
using V = tdx::PropertyValue;

namespace {

std::unique_ptr<oa::Property> named(const char* name, oa::PropertyType* type, V value,
                                    oa::AttributeCollection attributes = {})
{
    return std::make_unique<oa::Property>(name, name, type, std::move(value), std::move(attributes));
}

// Delegates belong to the view's model, not to the view: they are found in the item tree.
QQuickItem* findItem(QQuickItem* item, const QString& name)
{
    if (item->objectName() == name)
        return item;
    const auto children = item->childItems();
    for (QQuickItem* child : children) {
        if (QQuickItem* found = findItem(child, name))
            return found;
    }
    return nullptr;
}

V colourValue(const OdCmColor& color)
{
    V value;
    tdx::Props::setValue(value, color);
    return value;
}

void typeText(QWindow* window, const QString& text)
{
    for (const QChar c : text)
        QTest::keyClick(window, c.toLatin1());
}

} // namespace

// The kit's property panel over the items of a few properties, edited by mouse and keys.
class tst_PropertyPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase() { clearGPMTreeDataFactory(); }

    void rows_comeByCategoryWeightWithTheirEditors();
    void typing_writesBackAndRefusalsShowTheRealValue_data();
    void typing_writesBackAndRefusalsShowTheRealValue();
    void units_switchTheShownNumber();
    void choices_writeTheRowPicked();
    void colour_writesThePaletteRowOrTheDialogsChoice();
    void lineType_writesTheRowPickedOrLoaded();
    void readOnlyRows_takeNoInput();
    void clearing_dropsItemsTheEditorsStillShow();
    void editors_outliveTheirItem_data();
    void editors_outliveTheirItem();

private:
    QQuickItem* editor(const char* name) const { return findItem(m_panel, QString::fromLatin1(name)); }
    void typeInto(const char* name, const QString& text)
    {
        QQuickItem* field = editor(name);
        QVERIFY(field);
        clickItem(field);
        QVERIFY(field->hasActiveFocus());
        QTest::keySequence(field->window(), QKeySequence::SelectAll);
        QTest::keyClick(field->window(), Qt::Key_Backspace);
        typeText(field->window(), text);
        QTest::keyClick(field->window(), Qt::Key_Return);
    }

    oa::PropertyCategory m_general{"General", 10};
    oa::PropertyCategory m_geometry{"Geometry", 5};
    oa::PropertyCategory m_other{"Other", 30};
    oa::PropertyCategory m_display{"Display", 40};
    // The application whose services the colour and line type items use.
    std::unique_ptr<quickhost::QuickHost> m_host;
    std::vector<std::unique_ptr<oa::Property>> m_properties;
    std::unique_ptr<QmlFixture> m_qml;
    std::unique_ptr<quickhost::PropertyPanelModel> m_model;
    QQuickItem* m_panel = nullptr;
    std::unique_ptr<ItemWindow> m_window;
};

void tst_PropertyPanel::initTestCase()
{
    fillGPMTreeDataFactory();
}

void tst_PropertyPanel::init()
{
    using namespace oa::PropType;
    m_properties.clear();
    m_properties.push_back(named("Name", String::getType(), V(OdString("Wall"))));
    m_properties.push_back(named("Count", Integer::getType(), V::fromInteger(3)));
    m_properties.push_back(
        named("Style", Enumeration::getType(), V::fromInteger(2),
              {attribute<oa::EnumerationAttribute>(oa::EnumerationAttribute::Values{
                  {"Solid", V::fromInteger(1)}, {"Dashed", V::fromInteger(2)}, {"Dotted", V::fromInteger(3)}})}));
    m_properties.push_back(
        named("Locked", String::getType(), V(OdString("fixed")), {attribute<oa::ReadOnlyAttribute>()}));
    m_properties.push_back(named("Width", Distance::getType(), V(1500.0), {metres()}));
    V varies(OdString("oak"));
    varies.setVaries();
    m_properties.push_back(named("Material", String::getType(), varies));
    m_properties.push_back(named("Position", Point::getType(), V(2.5)));
    V mixed(true);
    mixed.setVaries();
    m_properties.push_back(
        named("Visible", Boolean::getType(), mixed, {attribute<oa::BooleanValueAttribute>("Yes", "No")}));
    m_host = std::make_unique<quickhost::QuickHost>(QStringList{qmlImportDir()});
    const OdDbObjectId hidden = ca::curDb()->addLinetype("Hidden", OdString(), {0.25, -0.125});
    m_properties.push_back(named("Colour", Color::getType(), colourValue(indexed(3))));
    m_properties.push_back(named("Line type", Linetype::getType(), V(hidden)));

    m_model = std::make_unique<quickhost::PropertyPanelModel>();
    new QAbstractItemModelTester(m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest, m_model.get());
    m_model->addCategory(m_general,
                         {m_properties[0].get(), m_properties[1].get(), m_properties[2].get(), m_properties[3].get()});
    m_model->addCategory(m_other, {m_properties[7].get(), m_properties[6].get(), nullptr});
    m_model->addCategory(m_geometry, {m_properties[4].get(), m_properties[5].get()});
    m_model->addCategory(m_display, {m_properties[8].get(), m_properties[9].get()});

    m_qml = std::make_unique<QmlFixture>();
    m_panel = qobject_cast<QQuickItem*>(
        m_qml->loadData("import Arvela.Components 1.0\nPropertyPanel { width: 420; height: 640 }"));
    QVERIFY(m_panel);
    m_panel->setProperty("model", QVariant::fromValue<QObject*>(m_model.get()));
    m_window = std::make_unique<ItemWindow>(m_panel);
    QTRY_VERIFY_WITH_TIMEOUT(editor("Position"), 2000);
}

void tst_PropertyPanel::cleanup()
{
    m_window.reset();
    m_qml.reset();
    m_model.reset();
    m_host.reset();
}

void tst_PropertyPanel::rows_comeByCategoryWeightWithTheirEditors()
{
    QStringList rows;
    for (int row = 0; row < m_model->rowCount(); ++row)
        rows << m_model->index(row, 0).data(quickhost::PropertyPanelModel::CategoryRole).toString() + ": " +
                    m_model->item(row)->label();
    QCOMPARE(rows, QStringList({"Geometry: Width", "Geometry: Material", "General: Name", "General: Count",
                                "General: Style", "General: Locked", "Other: Visible", "Other: Position",
                                "Display: Colour", "Display: Line type"}));
    QVERIFY(!m_model->item(10));
    QVERIFY(!m_model->item(-1));

    QVERIFY(editor("Name")->inherits("QQuickTextField"));
    QVERIFY(editor("Style")->inherits("QQuickComboBox"));
    QCOMPARE(editor("Style")->property("displayText").toString(), QStringLiteral("Dashed"));
    QCOMPARE(editor("Width/value")->property("text").toString(), QStringLiteral("1.5"));
    QCOMPARE(editor("Width/units")->property("displayText").toString(), QStringLiteral("km"));
    QCOMPARE(editor("Material")->property("text").toString(), QStringLiteral("*Varies*"));
    QCOMPARE(editor("Position")->property("text").toString(), QStringLiteral("2.5"));
    QCOMPARE(editor("Visible")->property("displayText").toString(), QStringLiteral("*Varies*"));
    // Known by their type, these two are edited in the kit's CAD combos.
    QCOMPARE(editor("Colour")->property("qmlType").toString(), QStringLiteral("ColorComboBox"));
    QCOMPARE(editor("Colour")->property("displayText").toString(), QStringLiteral("Green"));
    QCOMPARE(editor("Line type")->property("qmlType").toString(), QStringLiteral("LineTypeComboBox"));
    QCOMPARE(editor("Line type")->property("displayText").toString(), QStringLiteral("Hidden"));
}

void tst_PropertyPanel::typing_writesBackAndRefusalsShowTheRealValue_data()
{
    QTest::addColumn<int>("property");
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("refused");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("stored");

    QTest::newRow("string") << 0 << QByteArray("Name") << "Door" << false << "Door"
                            << "Door";
    QTest::newRow("string refused") << 0 << QByteArray("Name") << "Door" << true << "Wall"
                                    << "Wall";
    QTest::newRow("integer") << 1 << QByteArray("Count") << "12" << false << "12"
                             << "12";
    QTest::newRow("integer cleared") << 1 << QByteArray("Count") << "" << false << "*NoValue*"
                                     << "0";
    QTest::newRow("no integer") << 1 << QByteArray("Count") << "x" << false << "3"
                                << "3";
    QTest::newRow("integer refused") << 1 << QByteArray("Count") << "12" << true << "3"
                                     << "3";
    // Typed in the unit shown, kilometres.
    QTest::newRow("real") << 4 << QByteArray("Width/value") << "2.5" << false << "2.5"
                          << "2500";
    QTest::newRow("real refused") << 4 << QByteArray("Width/value") << "2.5" << true << "1.5"
                                  << "1500";
    QTest::newRow("over varying") << 5 << QByteArray("Material") << "pine" << false << "pine"
                                  << "pine";
}

void tst_PropertyPanel::typing_writesBackAndRefusalsShowTheRealValue()
{
    QFETCH(int, property);
    QFETCH(QByteArray, field);
    QFETCH(QString, typed);
    QFETCH(bool, refused);
    QFETCH(QString, shown);
    QFETCH(QString, stored);

    const oa::Property& target = *m_properties[size_t(property)];
    if (refused) {
        m_properties[size_t(property)]->setCheck([](const V&) { return false; });
        QTest::ignoreMessage(
            QtDebugMsg,
            qPrintable(QStringLiteral("Error setting property  \"%1\"  value").arg(QString(field).section('/', 0, 0))));
    }
    typeInto(field.constData(), typed);
    QCOMPARE(editor(field.constData())->property("text").toString(), shown);
    const V& value = target.storedValue();
    OdString text;
    const QString written = value.get(text)            ? qut::toQt(text)
                            : value.kind() == V::kReal ? QString::number(value.toReal())
                                                       : QString::number(value.toInteger());
    QCOMPARE(written, stored);
}

void tst_PropertyPanel::units_switchTheShownNumber()
{
    QQuickItem* units = editor("Width/units");
    units->forceActiveFocus();
    QTest::keyClick(units->window(), Qt::Key_Up);
    QCOMPARE(units->property("displayText").toString(), QStringLiteral("m"));
    QCOMPARE(editor("Width/value")->property("text").toString(), QStringLiteral("1500"));

    typeInto("Width/value", QStringLiteral("750"));
    QCOMPARE(m_properties[4]->storedValue().toReal(), 750.0);
    QCOMPARE(editor("Width/value")->property("text").toString(), QStringLiteral("750"));
}

void tst_PropertyPanel::choices_writeTheRowPicked()
{
    QQuickItem* style = editor("Style");
    style->forceActiveFocus();
    QTest::keyClick(style->window(), Qt::Key_Down);
    QCOMPARE(m_properties[2]->storedValue(), V::fromInteger(3));
    QCOMPARE(style->property("displayText").toString(), QStringLiteral("Dotted"));

    // A choice over a varying selection ends the variation.
    QQuickItem* visible = editor("Visible");
    visible->forceActiveFocus();
    QTest::keyClick(visible->window(), Qt::Key_Down);
    QCOMPARE(m_properties[7]->storedValue(), V(true));
    QCOMPARE(visible->property("displayText").toString(), QStringLiteral("Yes"));

    // A refused choice goes back to the row the property holds.
    style->forceActiveFocus();
    m_properties[2]->setCheck([](const V&) { return false; });
    QTest::ignoreMessage(QtDebugMsg, "Error setting property  \"Style\"  value");
    QTest::keyClick(style->window(), Qt::Key_Up);
    QCOMPARE(m_properties[2]->storedValue(), V::fromInteger(3));
    QCOMPARE(style->property("displayText").toString(), QStringLiteral("Dotted"));
}

void tst_PropertyPanel::colour_writesThePaletteRowOrTheDialogsChoice()
{
    OdCmColor asked;
    m_host->dialogFactory().setupColorDialogFaker([&asked](const OdCmColor& current, unsigned int) {
        asked = current;
        OdCmColor orange;
        orange.setRGB(255, 128, 0);
        return std::optional<OdCmColor>(orange);
    });
    const auto stored = [this] {
        OdCmColor color;
        return tdx::Props::getValue(m_properties[8]->storedValue(), color) ? color : OdCmColor(OdCmColor::kNone);
    };
    QQuickItem* colour = editor("Colour");

    pickRow(colour, QStringLiteral("colorRow2"));
    QCOMPARE(stored(), indexed(1));
    QCOMPARE(colour->property("displayText").toString(), QStringLiteral("Red"));

    // The last row opens the colour dialog on the colour shown; the colour
    // chosen there gets a row of its own.
    pickRow(colour, QStringLiteral("colorRow9"));
    QCOMPARE(asked, indexed(1));
    QTRY_COMPARE(stored().color(), 0xC2FF8000u);
    QCOMPARE(colour->property("currentIndex").toInt(), 9);
    QCOMPARE(colour->property("displayText").toString(), QStringLiteral("255,128,0"));

    // A refused pick comes back to the colour the property holds.
    m_properties[8]->setCheck([](const V&) { return false; });
    QTest::ignoreMessage(QtDebugMsg, "Error setting property  \"Colour\"  value");
    pickRow(colour, QStringLiteral("colorRow4"));
    QCOMPARE(stored().color(), 0xC2FF8000u);
    QTRY_COMPARE(colour->property("currentIndex").toInt(), 9);
}

void tst_PropertyPanel::lineType_writesTheRowPickedOrLoaded()
{
    m_host->dialogFactory().setupLineTypeLoaderFaker([](const QStringList&) { return QStringList{"DASHED"}; });
    OdDbDatabase* drawing = ca::curDb();
    QQuickItem* lineType = editor("Line type");

    pickRow(lineType, QStringLiteral("lineTypeRow0"));
    QCOMPARE(m_properties[9]->storedValue(), V(drawing->getLinetypeContinuousId()));

    // Down to Hidden, then down to "Load...", which loads a line type and writes it.
    lineType->forceActiveFocus();
    QTest::keyClick(lineType->window(), Qt::Key_Down);
    QCOMPARE(m_properties[9]->storedValue(), V(drawing->getLinetypeId("Hidden")));
    QTest::keyClick(lineType->window(), Qt::Key_Down);
    QTRY_COMPARE(m_properties[9]->storedValue(), V(drawing->getLinetypeId("DASHED")));
    QCOMPARE(lineType->property("displayText").toString(), QStringLiteral("DASHED"));

    // Refused, the combo goes back to the line type the property holds, wherever its row went.
    m_properties[9]->setCheck([](const V&) { return false; });
    QTest::ignoreMessage(QtDebugMsg, "Error setting property  \"Line type\"  value");
    pickRow(lineType, QStringLiteral("lineTypeRow0"));
    QCOMPARE(m_properties[9]->storedValue(), V(drawing->getLinetypeId("DASHED")));
    QTRY_COMPARE(lineType->property("displayText").toString(), QStringLiteral("DASHED"));
}

void tst_PropertyPanel::readOnlyRows_takeNoInput()
{
    QQuickItem* locked = editor("Locked");
    QVERIFY(!locked->isEnabled());
    QVERIFY(editor("Name")->isEnabled());
    clickItem(locked);
    typeText(locked->window(), QStringLiteral("changed"));
    QTest::keyClick(locked->window(), Qt::Key_Return);
    QCOMPARE(locked->property("text").toString(), QStringLiteral("fixed"));
    OdString text;
    QVERIFY(m_properties[3]->storedValue().get(text));
    QCOMPARE(qut::toQt(text), QStringLiteral("fixed"));
}

void tst_PropertyPanel::clearing_dropsItemsTheEditorsStillShow()
{
    QPointer<QQuickItem> name = editor("Name");
    const LogRecorder log;
    m_model->clear();
    QTRY_VERIFY(!name);
    QCoreApplication::processEvents();
    QCOMPARE(log.lines(), QStringList());
    QCOMPARE(m_panel->property("count").toInt(), 0);
}

void tst_PropertyPanel::editors_outliveTheirItem_data()
{
    QTest::addColumn<int>("property");
    QTest::newRow("string") << 0;
    QTest::newRow("integer") << 1;
    QTest::newRow("enumeration") << 2;
    QTest::newRow("real with units") << 4;
    QTest::newRow("boolean") << 7;
}

// An editor shown outside the panel, whose item goes first: it shows nothing then.
void tst_PropertyPanel::editors_outliveTheirItem()
{
    QFETCH(int, property);

    const oa::Property& source = *m_properties[size_t(property)];
    AvSmartPtr<GPMTreeData> item = FactoryFunction::queryX(source.type())->create(source);
    QQmlComponent component(&m_qml->engine(), item->componentUrl());
    std::unique_ptr<QObject> editor(
        component.createWithInitialProperties({{"itemData", QVariant::fromValue<QObject*>(item.get())}}));
    QVERIFY2(editor, qPrintable(component.errorString()));
    auto* shown = qobject_cast<QQuickItem*>(editor.get());
    shown->setParentItem(m_panel);

    const LogRecorder log;
    item = AvSmartPtr<GPMTreeData>();
    QCoreApplication::processEvents();
    QVERIFY(!editor->property("itemData").value<QObject*>());
    QCOMPARE(log.lines(), QStringList());
}

QTEST_MAIN(tst_PropertyPanel)
#include "tst_propertypanel.moc"
