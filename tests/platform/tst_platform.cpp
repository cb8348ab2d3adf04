#include <QColor>
#include <QTest>

#include <oda/OdApDocument.h>
#include <oda/OdDbDatabase.h>
#include <qut/qtconversions.h>
#include <ut/UUID.h>
#include <wut/guicolor.h>

namespace {

// Writes down what the document manager tells, by document name.
class RecordingReactor : public OdApDocManagerReactor
{
public:
    QStringList heard;
    OdApDocManager* removeFrom = nullptr;

    void documentCreated(OdApDocument* document) override { heard.append("created " + nameOf(document)); }
    void documentBecameCurrent(OdApDocument* document) override { heard.append("current " + nameOf(document)); }
    void documentToBeDestroyed(OdApDocument* document) override
    {
        heard.append("closing " + nameOf(document));
        if (removeFrom)
            removeFrom->removeReactor(this);
    }
    void documentDestroyed(const OdString& name) override { heard.append("closed " + qut::toQt(name)); }

private:
    static QString nameOf(const OdApDocument* document)
    {
        return document ? qut::toQt(document->name()) : QStringLiteral("none");
    }
};

} // namespace

class tst_Platform : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void strings_surviveEveryConversion_data();
    void strings_surviveEveryConversion();
    void colours_convertWithAlpha();
    void guiColours_areThemeColours();
    void uuids_surviveTheirText();
    void objectIds_openLiveObjectsOfTheirOwnDatabase();
    void lineTypeNames_compareWithoutCase();
    void documentManager_tellsItsReactors();
    void documentManager_letsAReactorLeaveWhileTold();
};

void tst_Platform::strings_surviveEveryConversion_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("empty") << QString();
    QTest::newRow("ASCII") << QStringLiteral("wxID_OK");
    QTest::newRow("Latin-1") << QString::fromUtf8("Größe");
    QTest::newRow("CJK") << QString::fromUtf8("線種");
    QTest::newRow("outside the BMP") << QString::fromUtf8("layer \xF0\x9F\x93\x90");
    QTest::newRow("embedded blank and quote") << QStringLiteral("a 'b' \"c\"");
}

void tst_Platform::strings_surviveEveryConversion()
{
    QFETCH(QString, text);

    const OdString od = qut::odFromQt(text);
    QCOMPARE(qut::toQt(od), text);
    const wxString wx = qut::wxFromQt(text);
    QCOMPARE(qut::toQt(wx), text);
    QCOMPARE(qut::toQt(qut::wxFromOd(od)), text);
    QCOMPARE(qut::toQt(qut::odFromWx(wx)), text);
    QCOMPARE(qut::toQt(OdString(text.toUtf8().constData())), text);
    QCOMPARE(od.isEmpty(), text.isEmpty());
}

void tst_Platform::colours_convertWithAlpha()
{
    QCOMPARE(qut::toQt(wxColour(10, 20, 30, 40)), QColor(10, 20, 30, 40));
    QCOMPARE(qut::toQt(wxColour(255, 0, 0)), QColor(Qt::red));
    QVERIFY(!qut::toQt(wxColour()).isValid());
}

void tst_Platform::guiColours_areThemeColours()
{
    const wxColour background = wut::guiColor(wut::EGuiColor(0));
    const wxColour text = wut::guiColor(wut::EGuiColor(18));
    QVERIFY(background.IsOk());
    QVERIFY(text.IsOk());
    // Text must stand out from the background it is drawn on.
    QVERIFY(qAbs(qut::toQt(background).lightness() - qut::toQt(text).lightness()) > 128);
}

void tst_Platform::uuids_surviveTheirText()
{
    // Property items announce their writes by the property's GUID as text.
    const ut::UUID uuid = ut::UUID::generate();
    QVERIFY(!uuid.isNull());
    QVERIFY(uuid != ut::UUID::generate());
    const OdString text = uuid;
    QVERIFY(qut::toQt(text).startsWith(QLatin1Char('{')));
    QCOMPARE(ut::UUID(text), uuid);
    QVERIFY(ut::UUID(OdString("no identifier")).isNull());
}

void tst_Platform::objectIds_openLiveObjectsOfTheirOwnDatabase()
{
    OdDbDatabasePtr database = OdDbDatabase::createObject();
    OdDbDatabasePtr other = OdDbDatabase::createObject();
    const OdDbObjectId continuous = database->getLinetypeContinuousId();

    QVERIFY(OdDbLinetypeTableRecord::cast(continuous.openObject()));
    QVERIFY(!OdDbLayerTableRecord::cast(continuous.openObject()));
    QCOMPARE(continuous.openObject()->database(), database.get());
    QVERIFY(continuous != other->getLinetypeContinuousId());
    QCOMPARE(continuous.handle(), other->getLinetypeContinuousId().handle());
    QVERIFY(!OdDbObjectId(continuous.handle()).openObject());
    QVERIFY(!OdDbObjectId::kNull.openObject());
    QVERIFY(!OdDbObjectId(database.get(), 9999).isValid());

    continuous.openObject()->erase();
    QVERIFY(continuous.isValid());
    QVERIFY(continuous.isErased());
    QVERIFY(!continuous.openObject());
    QCOMPARE(database->linetypeIds().size(), 2u);
    QCOMPARE(database->numRefs(), 1L);
}

void tst_Platform::lineTypeNames_compareWithoutCase()
{
    OdDbDatabasePtr database = OdDbDatabase::createObject();
    const OdDbObjectId dashed = database->addLinetype("Dashed", "Dashed __ __", {0.5, -0.25});

    QCOMPARE(database->getLinetypeId("DASHED"), dashed);
    QVERIFY(database->addLinetype("dashed", OdString(), {}).isNull());
    const auto record = OdDbLinetypeTableRecord::cast(dashed.openObject());
    QCOMPARE(record->patternLength(), 0.75);
    QCOMPARE(record->dashLengthAt(1), -0.25);
    QCOMPARE(record->dashLengthAt(2), 0.0);
    QCOMPARE(database->getCELTYPE(), database->getLinetypeByLayerId());
}

void tst_Platform::documentManager_tellsItsReactors()
{
    RecordingReactor reactor;
    {
        OdApDocManager documents;
        documents.addReactor(&reactor);
        documents.addReactor(&reactor);
        OdApDocument* first = documents.createDocument("A", OdDbDatabase::createObject());
        OdApDocument* second = documents.createDocument("B", OdDbDatabase::createObject());
        documents.activateDocument(first);
        documents.closeDocument(second);
        documents.closeDocument(second);
        documents.closeDocument(first);
        QCOMPARE(documents.curDocument(), nullptr);
        documents.createDocument("C", OdDbDatabase::createObject());
    }
    QCOMPARE(reactor.heard, (QStringList{"created A", "current A", "created B", "current B", "current A", "closing B",
                                         "closed B", "closing A", "closed A", "current none", "created C", "current C",
                                         "closing C", "closed C", "current none"}));
}

void tst_Platform::documentManager_letsAReactorLeaveWhileTold()
{
    RecordingReactor leaving;
    RecordingReactor staying;
    OdApDocManager documents;
    leaving.removeFrom = &documents;
    documents.addReactor(&leaving);
    documents.addReactor(&staying);
    OdApDocument* first = documents.createDocument("A", OdDbDatabase::createObject());
    documents.createDocument("B", OdDbDatabase::createObject());

    documents.closeDocument(first);
    documents.activateDocument(documents.documentAt(0));

    QCOMPARE(leaving.heard.last(), QStringLiteral("closing A"));
    QCOMPARE(staying.heard.mid(4), (QStringList{"closing A", "closed A", "current B"}));
}

QTEST_MAIN(tst_Platform)
#include "tst_platform.moc"
