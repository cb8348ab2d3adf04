#include <dlgbridge/cadmodels/colormodel.h>
#include <dlgbridge/cadmodels/linetypemodel.h>
#include <dlgbridge/gpm/avrxobjectimpl.h>
#include <dlgbridge/gpm/factoryfunction.h>
#include <dlgbridge/gpm/gpmbooleandata.h>
#include <dlgbridge/gpm/gpmcolourdata.h>
#include <dlgbridge/gpm/gpmenumerationdata.h>
#include <dlgbridge/gpm/gpmlinetypedata.h>
#include <dlgbridge/gpm/gpmrealdata.h>
#include <dlgbridge/gpm/gpmtreedatafactory.h>
#include <dlgbridge/gpm/gpmunknowntypedata.h>
#include <quickhost/quickhost.h>
#include <support/cmcolors.h>
#include <support/objectroles.h>
#include <support/properties.h>

#include <QAbstractItemModelTester>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <ca/CaApp.h>
#include <oa/PropertyType.h>
#include <oda/OdDbDatabase.h>
#include <qut/qtconversions.h>

#include <functional>
#include <memory>
#include <vector>

using namespace dbr;
using namespace dbr::test;
using V = tdx::PropertyValue;
using Write = std::function<void(GPMTreeData&)>;

Q_DECLARE_METATYPE(oa::PropertyType*)
Q_DECLARE_METATYPE(tdx::PropertyValue)
Q_DECLARE_METATYPE(oa::AttributeCollection)
Q_DECLARE_METATYPE(Write)
Q_DECLARE_METATYPE(OdCmColor)

namespace {

const char* const typedMessage = "Unable to get property  \"Name\"  typed value";
const char* const refusedMessage = "Error setting property  \"Name\"  value";

AvSmartPtr<GPMTreeData> itemFor(const oa::Property& property)
{
    const AvSmartPtr<FactoryFunction> factory = FactoryFunction::queryX(property.type());
    return factory ? factory->create(property) : AvSmartPtr<GPMTreeData>();
}

V colourValue(const OdCmColor& color)
{
    V value;
    tdx::Props::setValue(value, color);
    return value;
}

QString text(const V& value)
{
    return QStringLiteral("%1/%2/%3").arg(value.kind()).arg(value.toInteger()).arg(value.flags());
}

oa::AttributeCollection sizes(bool allowsNoValue)
{
    oa::AttributeCollection attributes{attribute<oa::EnumerationAttribute>(oa::EnumerationAttribute::Values{
        {"small", V::fromInteger(1)}, {"medium", V::fromInteger(2)}, {"large", V::fromInteger(3)}})};
    if (allowsNoValue)
        attributes.push_back(attribute<oa::ValueAttribute>(true));
    return attributes;
}

oa::AttributeCollection yesNo(bool allowsNoValue)
{
    oa::AttributeCollection attributes{attribute<oa::BooleanValueAttribute>("Yes", "No")};
    if (allowsNoValue)
        attributes.push_back(attribute<oa::ValueAttribute>(true));
    return attributes;
}

// What one action made the item signal: "started" (with the property's GUID,
// else the text it gave), "finished true" or "finished false", then each
// "valueChanged()" and "variesChanged()".
QStringList heard(GPMTreeData& item, const std::function<void()>& action)
{
    QSignalSpy started(&item, &GPMTreeData::updateStarted);
    QSignalSpy finished(&item, &GPMTreeData::updateFinished);
    std::vector<std::unique_ptr<QSignalSpy>> others;
    for (const char* name : {"valueChanged()", "variesChanged()"}) {
        if (item.metaObject()->indexOfSignal(name) >= 0)
            others.push_back(std::make_unique<QSignalSpy>(&item, QByteArray("2") + name));
    }
    action();
    QStringList lines;
    const QString uid = qut::toQt(OdString(item.GUID()));
    for (const QList<QVariant>& arguments : qAsConst(started))
        lines << (arguments.at(0).toString() == uid ? QStringLiteral("started") : arguments.at(0).toString());
    for (const QList<QVariant>& arguments : qAsConst(finished))
        lines << (arguments.at(0).toBool() ? QStringLiteral("finished true") : QStringLiteral("finished false"));
    for (const auto& spy : others) {
        for (int i = 0; i < spy->count(); ++i)
            lines << QString::fromLatin1(spy->signal());
    }
    return lines;
}

} // namespace

class tst_GPMData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { fillGPMTreeDataFactory(); }
    void cleanupTestCase() { clearGPMTreeDataFactory(); }
    // The colour and line type items take their models' services from the application.
    void init() { m_host = std::make_unique<quickhost::QuickHost>(); }
    void cleanup() { m_host.reset(); }

    void values_readAsText_data();
    void values_readAsText();
    void numbers_writeTextAndSpecialWords_data();
    void numbers_writeTextAndSpecialWords();
    void real_switchesUnitsAndParsesInTheCurrentOne();
    void refusedWrites_leaveTheRealValue_data();
    void refusedWrites_leaveTheRealValue();
    void choices_readTheirRow_data();
    void choices_readTheirRow();
    void choices_writeTheirRows_data();
    void choices_writeTheirRows();
    void enumeration_withoutItsAttributeStaysEmpty();
    void colour_startsOnItsRowAndWritesThePickedOne_data();
    void colour_startsOnItsRowAndWritesThePickedOne();
    void lineType_startsOnItsRowAndWritesRowsOnly();
    void lineType_followsTheCurrentDrawingAndLeavesWithTheItem();
    void cadValues_withoutApplicationServicesStayEmpty();

private:
    std::unique_ptr<quickhost::QuickHost> m_host;
};

void tst_GPMData::values_readAsText_data()
{
    QTest::addColumn<oa::PropertyType*>("type");
    QTest::addColumn<V>("value");
    QTest::addColumn<oa::AttributeCollection>("attributes");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("message");

    using namespace oa::PropType;
    const oa::AttributeCollection none;
    const oa::AttributeCollection readOnlyMetres{metres(), attribute<oa::ReadOnlyAttribute>()};
    QTest::newRow("integer") << Integer::getType() << V::fromInteger(-7) << none << "-7" << QString();
    QTest::newRow("integer with no value")
        << Integer::getType() << V(V::kInteger, 0, 49) << none << "*NoValue*" << QString();
    // Varies wins over no value.
    QTest::newRow("integer with both bits")
        << Integer::getType() << V(V::kInteger, 0, 51) << none << "*Varies*" << QString();
    QTest::newRow("integer holding a real") << Integer::getType() << V(2.5) << none << QString() << typedMessage;
    QTest::newRow("plain real") << Real::getType() << V(3.14159265) << none << "3.14159" << QString();
    QTest::newRow("real in its best unit")
        << Distance::getType() << V(1234.56789) << oa::AttributeCollection{metres()} << "1.23456789" << QString();
    QTest::newRow("read-only real, shown only")
        << Distance::getType() << V(1234.56789) << readOnlyMetres << "1.23457" << QString();
    QTest::newRow("real varies") << Length::getType() << V(V::kReal, 0, 2) << none << "*Varies*" << QString();
    QTest::newRow("string") << String::getType() << V(OdString("Wall")) << none << "Wall" << QString();
    QTest::newRow("string varies") << String::getType() << V(V::kString, 0, 3) << none << "*Varies*" << QString();
    QTest::newRow("string holding a number")
        << String::getType() << V::fromInteger(1) << none << QString() << typedMessage;
    QTest::newRow("unknown type") << oa::PropType::Point::getType() << V(2.5) << none << "2.5" << QString();
}

void tst_GPMData::values_readAsText()
{
    QFETCH(oa::PropertyType*, type);
    QFETCH(V, value);
    QFETCH(oa::AttributeCollection, attributes);
    QFETCH(QString, expected);
    QFETCH(QString, message);

    const auto property = makeProperty(type, value, attributes);
    AvSmartPtr<GPMTreeData> item = itemFor(*property);
    if (!item)
        item = AvRxObjectImpl<GPMUnknownTypeData>::createObject(*property);
    if (!message.isEmpty())
        QTest::ignoreMessage(QtDebugMsg, qPrintable(message));
    QCOMPARE(item->property("value").toString(), expected);
}

void tst_GPMData::numbers_writeTextAndSpecialWords_data()
{
    QTest::addColumn<oa::PropertyType*>("type");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("written");
    QTest::addColumn<QStringList>("signals");

    using namespace oa::PropType;
    const QStringList written{"started", "finished true", "valueChanged()"};
    const QStringList special{"started", "finished true"};
    QTest::newRow("integer") << Integer::getType() << "42"
                             << "2/42/48" << written;
    QTest::newRow("integer, empty text") << Integer::getType() << ""
                                         << "2/0/49" << special;
    QTest::newRow("integer, no value word") << Integer::getType() << "*NoValue*"
                                            << "2/0/49" << special;
    QTest::newRow("integer, varies word") << Integer::getType() << "*Varies*"
                                          << "2/0/50" << special;
    QTest::newRow("integer, no number") << Integer::getType() << "4x"
                                        << "2/7/48" << QStringList();
    QTest::newRow("real, no value word") << Real::getType() << "*NoValue*"
                                         << "3/0/1" << special;
    QTest::newRow("real, varies word") << Real::getType() << "*Varies*"
                                       << "3/0/2" << special;
    QTest::newRow("real, no number") << Real::getType() << "one"
                                     << "2/7/48" << QStringList();
    // A text property takes the words as text.
    QTest::newRow("string, varies word") << String::getType() << "*Varies*"
                                         << "4/0/0" << written;
}

void tst_GPMData::numbers_writeTextAndSpecialWords()
{
    QFETCH(oa::PropertyType*, type);
    QFETCH(QString, typed);
    QFETCH(QString, written);
    QFETCH(QStringList, signals);

    const auto property = makeProperty(type, V::fromInteger(7));
    const AvSmartPtr<GPMTreeData> item = itemFor(*property);
    QCOMPARE(heard(*item, [&] { item->setProperty("value", typed); }), signals);
    QCOMPARE(text(property->storedValue()), written);
}

void tst_GPMData::real_switchesUnitsAndParsesInTheCurrentOne()
{
    const auto property = makeProperty(oa::PropType::Distance::getType(), V(1500.0), {metres()});
    const AvSmartPtr<GPMRealData> item = GPMRealData::queryX(itemFor(*property).get());
    QVERIFY(item && item->hasUnits());
    QAbstractItemModelTester tester(item->unitsModel(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(item->unitsModel()->rowCount(), 3);
    QCOMPARE(item->unitsModel()->index(1, 0).data().toString(), QStringLiteral("km"));
    QCOMPARE(item->unitsIndex(), 1);
    QCOMPARE(item->value(), QStringLiteral("1.5"));

    QCOMPARE(heard(*item, [&] { item->setValue(QStringLiteral("2.5")); }),
             QStringList({"started", "finished true", "valueChanged()"}));
    QCOMPARE(property->storedValue().toReal(), 2500.0);

    QSignalSpy unitsChanged(item.get(), &GPMRealData::unitsIndexChanged);
    item->setCurrentUnitIndex(2);
    QCOMPARE(unitsChanged.count(), 1);
    QCOMPARE(item->value(), QStringLiteral("2500000"));
    item->setValue(QStringLiteral("12"));
    QCOMPARE(property->storedValue().toReal(), 0.012);

    // An index that names no unit shows and reads in the best one.
    item->setCurrentUnitIndex(7);
    QCOMPARE(item->value(), QStringLiteral("12"));
    item->setValue(QStringLiteral("3"));
    QCOMPARE(property->storedValue().toReal(), 3.0);
}

void tst_GPMData::refusedWrites_leaveTheRealValue_data()
{
    QTest::addColumn<oa::PropertyType*>("type");
    QTest::addColumn<V>("value");
    QTest::addColumn<oa::AttributeCollection>("attributes");
    QTest::addColumn<Write>("write");

    using namespace oa::PropType;
    const auto setValue = [](const char* text) {
        return Write([text](GPMTreeData& item) { item.setProperty("value", QString::fromLatin1(text)); });
    };
    const auto choose = [](int index) {
        return Write(
            [index](GPMTreeData& item) { QMetaObject::invokeMethod(&item, "setCurrentIndex", Q_ARG(int, index)); });
    };
    const auto pickColour = [](int index) {
        return Write([index](GPMTreeData& item) { static_cast<GPMColourData&>(item).setCurrentColor(index); });
    };
    const auto pickLineType = [](int index) {
        return Write([index](GPMTreeData& item) { static_cast<GPMLineTypeData&>(item).setCurrentLineType(index); });
    };
    const V seven = V::fromInteger(7);
    QTest::newRow("integer") << Integer::getType() << seven << oa::AttributeCollection{} << setValue("8");
    QTest::newRow("integer, no value") << Integer::getType() << seven << oa::AttributeCollection{} << setValue("");
    QTest::newRow("real") << Length::getType() << V(7.0) << oa::AttributeCollection{metres()} << setValue("8");
    QTest::newRow("real, varies") << Real::getType() << V(7.0) << oa::AttributeCollection{} << setValue("*Varies*");
    QTest::newRow("string") << String::getType() << V(OdString("7")) << oa::AttributeCollection{} << setValue("8");
    QTest::newRow("enumeration") << Enumeration::getType() << seven << sizes(true) << choose(0);
    QTest::newRow("enumeration, no value") << Enumeration::getType() << seven << sizes(false) << choose(3);
    QTest::newRow("boolean") << Boolean::getType() << V(true) << yesNo(false) << choose(1);
    QTest::newRow("boolean, no value") << Boolean::getType() << V(true) << yesNo(false) << choose(2);
    QTest::newRow("colour") << Color::getType() << colourValue(indexed(3)) << oa::AttributeCollection{}
                            << pickColour(2);
    QTest::newRow("line type") << Linetype::getType() << V(OdDbObjectId::kNull) << oa::AttributeCollection{}
                               << pickLineType(0);
}

void tst_GPMData::refusedWrites_leaveTheRealValue()
{
    QFETCH(oa::PropertyType*, type);
    QFETCH(V, value);
    QFETCH(oa::AttributeCollection, attributes);
    QFETCH(Write, write);

    const auto property = makeProperty(type, value, attributes);
    property->setCheck([](const V&) { return false; });
    const AvSmartPtr<GPMTreeData> item = itemFor(*property);
    const QVariant shown = item->property("value");
    const QVariant row = item->property("initialCurrentIndex");

    QTest::ignoreMessage(QtDebugMsg, refusedMessage);
    QCOMPARE(heard(*item, [&] { write(*item); }), QStringList({"started", "finished false"}));
    QCOMPARE(property->storedValue(), value);
    QCOMPARE(item->property("value"), shown);
    QCOMPARE(item->property("initialCurrentIndex"), row);
}

void tst_GPMData::choices_readTheirRow_data()
{
    QTest::addColumn<oa::PropertyType*>("type");
    QTest::addColumn<V>("value");
    QTest::addColumn<oa::AttributeCollection>("attributes");
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<int>("current");
    QTest::addColumn<bool>("varies");

    using namespace oa::PropType;
    const QStringList three{"small", "medium", "large"};
    const QStringList four = three + QStringList{"*NoValue*"};
    QTest::newRow("enumeration") << Enumeration::getType() << V::fromInteger(2) << sizes(false) << three << 1 << false;
    QTest::newRow("value not listed") << Enumeration::getType() << V::fromInteger(9) << sizes(false) << three << -1
                                      << false;
    // It lands on the "*NoValue*" row.
    QTest::newRow("value not listed, may have none")
        << Enumeration::getType() << V::fromInteger(9) << sizes(true) << four << 3 << false;
    QTest::newRow("enumeration varies") << Integer::getType() << V(V::kInteger, 0, 50) << sizes(true) << four << -1
                                        << true;
    QTest::newRow("true") << Boolean::getType() << V(true) << yesNo(false) << QStringList{"Yes", "No"} << 0 << false;
    QTest::newRow("false") << Boolean::getType() << V(false) << yesNo(true) << QStringList{"Yes", "No", "*NoValue*"}
                           << 1 << false;
    QTest::newRow("boolean varies") << Boolean::getType() << V(V::kBoolean, 0, 26) << yesNo(false)
                                    << QStringList{"Yes", "No"} << -1 << true;
}

void tst_GPMData::choices_readTheirRow()
{
    QFETCH(oa::PropertyType*, type);
    QFETCH(V, value);
    QFETCH(oa::AttributeCollection, attributes);
    QFETCH(QStringList, rows);
    QFETCH(int, current);
    QFETCH(bool, varies);

    const auto property = makeProperty(type, value, attributes);
    const AvSmartPtr<GPMTreeData> item = itemFor(*property);
    auto* model = item->property("enumerationModel").value<QAbstractListModel*>();
    QVERIFY(model);
    QAbstractItemModelTester tester(model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QStringList labels;
    for (int row = 0; row < model->rowCount(); ++row)
        labels << model->index(row, 0).data().toString();
    QCOMPARE(labels, rows);
    QCOMPARE(item->property("initialCurrentIndex").toInt(), current);
    QCOMPARE(item->property("isVaries").toBool(), varies);
}

void tst_GPMData::choices_writeTheirRows_data()
{
    QTest::addColumn<oa::PropertyType*>("type");
    QTest::addColumn<V>("value");
    QTest::addColumn<oa::AttributeCollection>("attributes");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("written");
    QTest::addColumn<QStringList>("signals");

    using namespace oa::PropType;
    const QStringList written{"started", "finished true"};
    const QStringList ended = written + QStringList{"variesChanged()"};
    const V two = V::fromInteger(2);
    QTest::newRow("enumeration row") << Enumeration::getType() << two << sizes(false) << 2 << "2/3/48" << written;
    QTest::newRow("the row it has") << Enumeration::getType() << two << sizes(false) << 1 << "2/2/48" << QStringList();
    // Past the labels is no value, whether or not the property allows it.
    QTest::newRow("row after the labels") << Enumeration::getType() << two << sizes(false) << 3 << "0/0/1" << written;
    QTest::newRow("beyond") << Enumeration::getType() << two << sizes(true) << 4 << "2/2/48" << QStringList();
    QTest::newRow("negative") << Enumeration::getType() << two << sizes(true) << -2 << "2/2/48" << QStringList();
    QTest::newRow("ending a variation") << Enumeration::getType() << V(V::kInteger, 0, 50) << sizes(false) << 0
                                        << "2/1/48" << ended;
    QTest::newRow("false") << Boolean::getType() << V(true) << yesNo(false) << 1 << "1/0/24" << written;
    // Row 2 writes no value even where no such row is shown.
    QTest::newRow("boolean no value") << Boolean::getType() << V(true) << yesNo(false) << 2 << "1/0/25" << written;
    QTest::newRow("boolean beyond") << Boolean::getType() << V(true) << yesNo(true) << 3 << "1/1/24" << QStringList();
    QTest::newRow("boolean varied") << Boolean::getType() << V(V::kBoolean, 0, 26) << yesNo(false) << 0 << "1/1/24"
                                    << ended;
}

void tst_GPMData::choices_writeTheirRows()
{
    QFETCH(oa::PropertyType*, type);
    QFETCH(V, value);
    QFETCH(oa::AttributeCollection, attributes);
    QFETCH(int, index);
    QFETCH(QString, written);
    QFETCH(QStringList, signals);

    const auto property = makeProperty(type, value, attributes);
    const AvSmartPtr<GPMTreeData> item = itemFor(*property);
    const int before = item->property("initialCurrentIndex").toInt();
    QCOMPARE(heard(*item, [&] { QMetaObject::invokeMethod(item.get(), "setCurrentIndex", Q_ARG(int, index)); }),
             signals);
    QCOMPARE(text(property->storedValue()), written);
    QCOMPARE(item->property("initialCurrentIndex").toInt(), signals.isEmpty() ? before : index);
    QVERIFY(!item->property("isVaries").toBool());
}

void tst_GPMData::enumeration_withoutItsAttributeStaysEmpty()
{
    const auto property = makeProperty(oa::PropType::Enumeration::getType(), V::fromInteger(2));
    QTest::ignoreMessage(QtDebugMsg, "Got Enumeration property without EnumerationAttribute:  \"Global\"");
    const AvSmartPtr<GPMTreeData> item = itemFor(*property);
    QCOMPARE(item->property("enumerationModel").value<QAbstractListModel*>()->rowCount(), 0);
    QCOMPARE(item->property("initialCurrentIndex").toInt(), -1);
}

void tst_GPMData::colour_startsOnItsRowAndWritesThePickedOne_data()
{
    QTest::addColumn<V>("value");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("rows");
    QTest::addColumn<QString>("message");
    QTest::addColumn<int>("picked");
    QTest::addColumn<OdCmColor>("written");

    // The rows: by layer, by block, the seven named colours, then the load row.
    QTest::newRow("named colour") << colourValue(indexed(3)) << 4 << 10 << QString() << 2 << indexed(1);
    // A colour the list lacks gets its row, just above the load row.
    QTest::newRow("true colour") << colourValue(rgb(10, 20, 30)) << 9 << 11 << QString() << 9 << rgb(10, 20, 30);
    QTest::newRow("no value") << V(V::kColor, 0, V::kNoValue) << 0 << 10 << typedMessage << 3 << indexed(2);
    // Nothing checks the row: one that isn't there writes no colour.
    QTest::newRow("no row") << colourValue(indexed(3)) << 4 << 10 << QString() << -1 << OdCmColor(OdCmColor::kNone);
    // The special rows stand for the controller's colour 0, by block here.
    QTest::newRow("load row") << colourValue(indexed(3)) << 4 << 10 << QString() << 9 << OdCmColor(OdCmColor::kByBlock);
}

void tst_GPMData::colour_startsOnItsRowAndWritesThePickedOne()
{
    QFETCH(V, value);
    QFETCH(int, row);
    QFETCH(int, rows);
    QFETCH(QString, message);
    QFETCH(int, picked);
    QFETCH(OdCmColor, written);

    const auto property = makeProperty(oa::PropType::Color::getType(), value);
    if (!message.isEmpty())
        QTest::ignoreMessage(QtDebugMsg, qPrintable(message));
    const AvSmartPtr<GPMColourData> item = GPMColourData::queryX(itemFor(*property).get());
    QVERIFY(item);
    QAbstractListModel* model = item->colorModel();
    QVERIFY(model);
    QCOMPARE(item->QObject::property("colorModel").value<QAbstractListModel*>(), model);
    attachModelTester(*model);
    QCOMPARE(model->rowCount(), rows);
    QCOMPARE(item->QObject::property("initialColorIndex").toInt(), row);

    QCOMPARE(heard(*item, [&] { item->setCurrentColor(picked); }), QStringList({"started", "finished true"}));
    OdCmColor stored;
    QVERIFY(tdx::Props::getValue(property->storedValue(), stored));
    QCOMPARE(stored.color(), written.color());
    // The row read at construction stays what it was.
    QCOMPARE(item->initialColorIndex(), row);
}

void tst_GPMData::lineType_startsOnItsRowAndWritesRowsOnly()
{
    OdDbDatabase* drawing = ca::curDb();
    const OdDbObjectId hidden = drawing->addLinetype("Hidden", OdString(), {0.25, -0.125});
    const auto property = makeProperty(oa::PropType::Linetype::getType(), V(hidden));
    const AvSmartPtr<GPMLineTypeData> item = GPMLineTypeData::queryX(itemFor(*property).get());
    QVERIFY(item);
    auto* model = qobject_cast<LineTypeModel*>(item->lineTypeModel());
    QVERIFY(model);
    attachModelTester(*model);
    QCOMPARE(model->rowCount(), 3); // Continuous, Hidden, "Load..."
    QCOMPARE(item->QObject::property("initialLineTypeIndex").toInt(), 1);

    for (int index : {-1, 3}) {
        QCOMPARE(heard(*item, [&] { item->setCurrentLineType(index); }), QStringList());
        QCOMPARE(property->storedValue(), V(hidden));
    }
    QCOMPARE(heard(*item, [&] { item->setCurrentLineType(0); }), QStringList({"started", "finished true"}));
    QCOMPARE(property->storedValue(), V(drawing->getLinetypeContinuousId()));
    // "Load..." is a row like the others: it writes its null id.
    item->setCurrentLineType(2);
    QCOMPARE(property->storedValue(), V(OdDbObjectId::kNull));

    // A value that is no line type id starts on the first row.
    const auto number = makeProperty(oa::PropType::Linetype::getType(), V::fromInteger(1));
    QTest::ignoreMessage(QtDebugMsg, typedMessage);
    QCOMPARE(itemFor(*number)->property("initialLineTypeIndex").toInt(), 0);
}

void tst_GPMData::lineType_followsTheCurrentDrawingAndLeavesWithTheItem()
{
    OdApDocManager& documents = m_host->documents();
    const auto property = makeProperty(oa::PropType::Linetype::getType(), V(OdDbObjectId::kNull));
    AvSmartPtr<GPMTreeData> item = itemFor(*property);
    QPointer<QAbstractListModel> model = GPMLineTypeData::queryX(item.get())->lineTypeModel();
    QVERIFY(model);
    attachModelTester(*model);
    QCOMPARE(model->rowCount(), 2);

    OdDbDatabasePtr other = OdDbDatabase::createObject();
    other->addLinetype("Dot", OdString(), {0, -0.25});
    OdApDocument* second = documents.createDocument("Drawing2", other);
    QCOMPARE(model->rowCount(), 3);
    QCOMPARE(model->index(0, 0).data(0).value<QObject*>()->property("lineTypeName").toString(),
             QStringLiteral("Continuous"));
    QCOMPARE(model->index(1, 0).data(0).value<QObject*>()->property("lineTypeName").toString(), QStringLiteral("Dot"));
    GPMLineTypeData::queryX(item.get())->setCurrentLineType(1);
    QCOMPARE(property->storedValue(), V(other->getLinetypeId("Dot")));

    // Gone with the item, the model hears no more of the documents.
    item = AvSmartPtr<GPMTreeData>();
    QVERIFY(!model);
    documents.closeDocument(second);
    documents.createDocument("Drawing3", OdDbDatabase::createObject());
}

void tst_GPMData::cadValues_withoutApplicationServicesStayEmpty()
{
    m_host.reset();
    const auto colour = makeProperty(oa::PropType::Color::getType(), colourValue(indexed(3)));
    const auto lineType = makeProperty(oa::PropType::Linetype::getType(), V(OdDbObjectId::kNull));
    const AvSmartPtr<GPMColourData> colourItem = GPMColourData::queryX(itemFor(*colour).get());
    const AvSmartPtr<GPMLineTypeData> lineTypeItem = GPMLineTypeData::queryX(itemFor(*lineType).get());
    QVERIFY(!colourItem->colorModel() && !lineTypeItem->lineTypeModel());
    QCOMPARE(heard(*colourItem, [&] { colourItem->setCurrentColor(1); }), QStringList());
    QCOMPARE(heard(*lineTypeItem, [&] { lineTypeItem->setCurrentLineType(0); }), QStringList());
}

QTEST_GUILESS_MAIN(tst_GPMData)
#include "tst_gpmdata.moc"
