#include <QColor>
#include <QTest>

#include <qut/qtconversions.h>
#include <ut/UUID.h>
#include <wut/guicolor.h>

class tst_Platform : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void strings_surviveEveryConversion_data();
    void strings_surviveEveryConversion();
    void colours_convertWithAlpha();
    void guiColours_areThemeColours();
    void uuids_surviveTheirText();
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

QTEST_MAIN(tst_Platform)
#include "tst_platform.moc"
