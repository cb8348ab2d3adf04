#include <dlgbridge/gpm/avrxobjectimpl.h>
#include <dlgbridge/gpm/factoryfunction.h>
#include <dlgbridge/gpm/gpmbooleandata.h>
#include <dlgbridge/gpm/gpmcategoryitem.h>
#include <dlgbridge/gpm/gpmcolourdata.h>
#include <dlgbridge/gpm/gpmenumerationdata.h>
#include <dlgbridge/gpm/gpmintegerdata.h>
#include <dlgbridge/gpm/gpmlinetypedata.h>
#include <dlgbridge/gpm/gpmpropertydatabase.h>
#include <dlgbridge/gpm/gpmrealdata.h>
#include <dlgbridge/gpm/gpmstringdata.h>
#include <dlgbridge/gpm/gpmtreedatafactory.h>
#include <dlgbridge/gpm/gpmunknowntypedata.h>
#include <support/paths.h>
#include <support/properties.h>

#include <QPointer>
#include <QTest>

#include <oa/PropertyType.h>
#include <oda/OdAlloc.h>
#include <oda/OdError.h>
#include <qut/qmlurl.h>
#include <qut/qtconversions.h>
#include <tdx/AvRxObject.h>

#include <functional>
#include <vector>

using namespace dbr;
using namespace dbr::test;

Q_DECLARE_METATYPE(oa::PropertyType*)

namespace {

std::vector<oa::PropertyType*> allTypes()
{
    using namespace oa::PropType;
    return {Angle::getType(),       Area::getType(),    Boolean::getType(), Color::getType(),    Distance::getType(),
            Enumeration::getType(), Integer::getType(), Length::getType(),  Linetype::getType(), Mass::getType(),
            Real::getType(),        String::getType(),  Volume::getType()};
}

std::size_t attachedFactories()
{
    std::size_t count = 0;
    for (oa::PropertyType* type : allTypes())
        count += type->extensionManager() ? type->extensionManager()->count() : 0;
    return count;
}

int codeOf(const std::function<void()>& call)
{
    try {
        call();
    } catch (const OdError& error) {
        return error.code();
    }
    return 0;
}

AvSmartPtr<GPMTreeData> itemFor(const oa::Property& property)
{
    const AvSmartPtr<FactoryFunction> factory = FactoryFunction::queryX(property.type());
    return factory ? factory->create(property) : AvSmartPtr<GPMTreeData>();
}

} // namespace

class tst_GPMItems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    // Runs first: no fill has been made in this process yet.
    void clearWithoutFill_makesNoManagers();
    void registration_refusesTwiceAndUnregistered();
    void rxInit_registersParentsFirst();
    void factories_stayThirteenSlotsAndDieOnClear();
    void factories_makeTheItemOfEachType_data();
    void factories_makeTheItemOfEachType();
    void items_dieWithTheirLastPointer();
    void queryX_crossesBothIdentitiesToOneObject();
    void categoryItem_isAReadOnlyHeading();
};

void tst_GPMItems::initTestCase()
{
    qut::addQmlImportDirectory(qmlImportDir());
}

void tst_GPMItems::clearWithoutFill_makesNoManagers()
{
    clearGPMTreeDataFactory();
    for (oa::PropertyType* type : allTypes())
        QVERIFY(!type->extensionManager());
}

void tst_GPMItems::registration_refusesTwiceAndUnregistered()
{
    QCOMPARE(codeOf(&GPMStringData::rxInit), 313);
    QVERIFY(!GPMStringData::createVirtualObject());

    GPMStringData::rxUninit();
    QVERIFY(!GPMStringData::desc());
    QCOMPARE(codeOf(&GPMStringData::rxUninit), 255);
    QCOMPARE(codeOf([] { GPMStringData::createVirtualObject(); }), 255);

    GPMStringData::rxInit();
    QVERIFY(GPMStringData::desc());
}

void tst_GPMItems::rxInit_registersParentsFirst()
{
    // Children before parents, so that no class is left under a parent that went.
    for (auto uninit :
         {&GPMBooleanData::rxUninit, &GPMColourData::rxUninit, &GPMEnumerationData::rxUninit, &GPMIntegerData::rxUninit,
          &GPMLineTypeData::rxUninit, &GPMRealData::rxUninit, &GPMStringData::rxUninit, &GPMUnknownTypeData::rxUninit,
          &GPMCategoryItem::rxUninit, &GPMPropertyDataBase::rxUninit, &GPMTreeData::rxUninit})
        uninit();

    GPMStringData::rxInit();
    QVERIFY(GPMTreeData::desc());
    QCOMPARE(GPMPropertyDataBase::desc()->myParent(), GPMTreeData::desc());
    QCOMPARE(GPMStringData::desc()->myParent(), GPMPropertyDataBase::desc());
    QVERIFY(!GPMCategoryItem::desc());

    for (auto init :
         {&GPMCategoryItem::rxInit, &GPMBooleanData::rxInit, &GPMColourData::rxInit, &GPMEnumerationData::rxInit,
          &GPMIntegerData::rxInit, &GPMLineTypeData::rxInit, &GPMRealData::rxInit, &GPMUnknownTypeData::rxInit})
        init();
}

void tst_GPMItems::factories_stayThirteenSlotsAndDieOnClear()
{
    const std::size_t before = odrxLiveBlocks();
    fillGPMTreeDataFactory();
    QCOMPARE(attachedFactories(), std::size_t(13));
    QCOMPARE(odrxLiveBlocks(), before + 13);
    for (oa::PropertyType* type : allTypes()) {
        QVERIFY(type->extensionManager());
        if (const AvSmartPtr<FactoryFunction> factory = FactoryFunction::queryX(type))
            QCOMPARE(factory->numRefs(), 2L); // the manager's and ours
    }

    fillGPMTreeDataFactory();
    QCOMPARE(attachedFactories(), std::size_t(13));
    QCOMPARE(odrxLiveBlocks(), before + 13);

    clearGPMTreeDataFactory();
    QCOMPARE(attachedFactories(), std::size_t(0));
    QCOMPARE(odrxLiveBlocks(), before);
    QVERIFY(oa::PropType::Real::getType()->extensionManager());
    QVERIFY(!FactoryFunction::queryX(oa::PropType::Real::getType()));
    QVERIFY(!FactoryFunction::queryX(static_cast<const OdRxObject*>(nullptr)));
}

void tst_GPMItems::factories_makeTheItemOfEachType_data()
{
    QTest::addColumn<oa::PropertyType*>("type");
    QTest::addColumn<bool>("enumerated");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("file");

    using namespace oa::PropType;
    QTest::newRow("angle") << Angle::getType() << false << "dbr::GPMRealData"
                           << "real"
                           << "RealType.qml";
    // The unit-bearing types never become choices.
    QTest::newRow("length with values") << Length::getType() << true << "dbr::GPMRealData"
                                        << "real"
                                        << "RealType.qml";
    QTest::newRow("boolean") << Boolean::getType() << false << "dbr::GPMBooleanData"
                             << "combobox"
                             << "EnumerationType.qml";
    QTest::newRow("enumeration") << Enumeration::getType() << true << "dbr::GPMEnumerationData"
                                 << "combobox"
                                 << "EnumerationType.qml";
    QTest::newRow("integer") << Integer::getType() << false << "dbr::GPMIntegerData"
                             << "integer"
                             << "IntegerType.qml";
    QTest::newRow("integer with values") << Integer::getType() << true << "dbr::GPMEnumerationData"
                                         << "combobox"
                                         << "EnumerationType.qml";
    QTest::newRow("real") << Real::getType() << false << "dbr::GPMRealData"
                          << "real"
                          << "RealType.qml";
    QTest::newRow("real with values") << Real::getType() << true << "dbr::GPMEnumerationData"
                                      << "combobox"
                                      << "EnumerationType.qml";
    QTest::newRow("string") << String::getType() << false << "dbr::GPMStringData"
                            << "string"
                            << "StringType.qml";
    QTest::newRow("string with values") << String::getType() << true << "dbr::GPMEnumerationData"
                                        << "combobox"
                                        << "EnumerationType.qml";
    // Told apart by their type, not by an editor file of their own.
    QTest::newRow("colour") << Color::getType() << false << "dbr::GPMColourData"
                            << "colour"
                            << "UnknownType.qml";
    QTest::newRow("line type") << Linetype::getType() << false << "dbr::GPMLineTypeData"
                               << "linetype"
                               << "UnknownType.qml";
    QTest::newRow("point") << Point::getType() << false << QString() << QString() << QString();
}

void tst_GPMItems::factories_makeTheItemOfEachType()
{
    QFETCH(oa::PropertyType*, type);
    QFETCH(bool, enumerated);
    QFETCH(QString, className);
    QFETCH(QString, word);
    QFETCH(QString, file);

    fillGPMTreeDataFactory();
    oa::AttributeCollection attributes;
    if (enumerated)
        attributes.push_back(attribute<oa::EnumerationAttribute>(
            oa::EnumerationAttribute::Values{{"one", tdx::PropertyValue::fromInteger(1)}}));
    const auto source = makeProperty(type, tdx::PropertyValue::fromInteger(1), attributes);
    const AvSmartPtr<GPMTreeData> item = itemFor(*source);
    clearGPMTreeDataFactory();

    if (className.isEmpty()) {
        QVERIFY(!item);
        return;
    }
    QVERIFY(item);
    QCOMPARE(item->numRefs(), 1L);
    QCOMPARE(QString::fromLatin1(item->metaObject()->className()), className);
    QCOMPARE(item->property("type").toString(), word);
    QCOMPARE(item->componentUrl().fileName(), file);
    QCOMPARE(item->label(), QStringLiteral("Name"));
    QCOMPARE(item->description(), QStringLiteral("What it is"));
    QCOMPARE(item->GUID(), source->GUID());
}

void tst_GPMItems::items_dieWithTheirLastPointer()
{
    fillGPMTreeDataFactory();
    const auto source = makeProperty(oa::PropType::String::getType(), tdx::PropertyValue(OdString("text")));
    const std::size_t before = odrxLiveBlocks();
    AvSmartPtr<GPMTreeData> item = itemFor(*source);
    QPointer<QObject> watch(item.get());
    QCOMPARE(odrxLiveBlocks(), before + 1);
    {
        const AvSmartPtr<GPMTreeData> second = item;
        QCOMPARE(item->numRefs(), 2L);
    }
    QCOMPARE(item->numRefs(), 1L);
    item = AvSmartPtr<GPMTreeData>();
    QVERIFY(!watch);
    QCOMPARE(odrxLiveBlocks(), before);
    clearGPMTreeDataFactory();
}

void tst_GPMItems::queryX_crossesBothIdentitiesToOneObject()
{
    fillGPMTreeDataFactory();
    const auto source = makeProperty(oa::PropType::String::getType(), tdx::PropertyValue(OdString("text")));
    const AvSmartPtr<GPMTreeData> item = itemFor(*source);
    clearGPMTreeDataFactory();

    QObject* qtSide = item.get();
    auto* rxSide = static_cast<AvRxObject*>(qtSide->qt_metacast("AvRxObject"));
    QVERIFY(rxSide);
    {
        const AvSmartPtr<GPMTreeData> back = GPMTreeData::queryX(rxSide);
        QCOMPARE(static_cast<QObject*>(back.get()), qtSide);
        const AvSmartPtr<GPMStringData> typed = GPMStringData::queryX(rxSide);
        QCOMPARE(static_cast<QObject*>(typed.get()), qtSide);
        QCOMPARE(item->numRefs(), 3L);
        QVERIFY(!GPMRealData::queryX(rxSide));
        QVERIFY(!FactoryFunction::queryX(rxSide));
        QVERIFY(!item->queryX(static_cast<const OdRxClass*>(nullptr)));
    }
    QCOMPARE(item->numRefs(), 1L);
}

void tst_GPMItems::categoryItem_isAReadOnlyHeading()
{
    const oa::PropertyCategory category("Geometry", 20);
    const AvSmartPtr<GPMCategoryItem> item = AvRxObjectImpl<GPMCategoryItem>::createObject(category);
    QCOMPARE(item->type(), QStringLiteral("category"));
    QCOMPARE(item->label(), QStringLiteral("Geometry"));
    QVERIFY(item->isReadOnly());
    QVERIFY(item->description().isEmpty());
    QCOMPARE(item->componentUrl().fileName(), QStringLiteral("UnknownType.qml"));
    QCOMPARE(item->sortWeight(), 20u);
    QCOMPARE(item->GUID(), category.GUID());
    QVERIFY(!item->getAttribute(oa::UnitsAttribute::desc(), std::nullopt));
    QVERIFY(!item->getAttribute(nullptr, std::nullopt));
}

QTEST_GUILESS_MAIN(tst_GPMItems)
#include "tst_gpmitems.moc"
