#include <support/cmcolors.h>
#include <support/itemwindow.h>
#include <support/paths.h>

#include <quickhost/linetypefile.h>
#include <quickhost/quickhost.h>

#include <QBuffer>
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QTimer>

#include <wx/bitmap.h>

#include <ca/CaApp.h>
#include <oda/OdDbDatabase.h>
#include <qut/qtconversions.h>

#include <functional>
#include <memory>

using namespace dbr;
using namespace dbr::test;
using namespace dbr::quickhost;

Q_DECLARE_METATYPE(OdCmColor)

namespace {

// The item of that name in the shown window whose root is named root.
QQuickItem* inShownDialog(const QString& root, const QString& name)
{
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
        auto* quickWindow = qobject_cast<QQuickWindow*>(window);
        QQuickItem* dialog =
            quickWindow && quickWindow->isVisible() ? findVisualItem(quickWindow->contentItem(), root) : nullptr;
        if (dialog)
            return name == root ? dialog : findVisualItem(dialog, name);
    }
    return nullptr;
}

void click(QQuickItem* item)
{
    QVERIFY(item);
    const QPointF centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
    QTest::mouseClick(item->window(), Qt::LeftButton, Qt::NoModifier, centre.toPoint());
}

// Plays the user of a modal dialog once it is on screen.
void whenShown(const QString& root, std::function<void()> play)
{
    QTimer::singleShot(0, [root, play = std::move(play)] {
        QQuickItem* dialog = nullptr;
        QTRY_VERIFY((dialog = inShownDialog(root, root)) != nullptr);
        QVERIFY(QTest::qWaitForWindowExposed(dialog->window()));
        play();
    });
}

} // namespace

class tst_CadServices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_host = std::make_unique<QuickHost>(QStringList{test::qmlImportDir()}); }
    void cleanup() { m_host.reset(); }
    void indexTable_isTheCadPalette();
    void acceptsColor_data();
    void acceptsColor();
    void addedTrueColours_areListedFromThenOn();
    void colorRowInfo_namesAndDiagonals();
    void colorDialog_picksAnIndexColour();
    void colorDialog_picksByLayer();
    void colorDialog_picksATrueColourTyped();
    void colorDialog_cancelled_givesNothing();
    void colorDialog_showsOnlyWhatTheOptionsAllow();
    void lineTypeLoader_addsTheLineTypesChecked();
    void lineTypeLoader_cancelled_addsNothing();
    void lineTypeFile_skipsWhatDoesntRead();
    void lineTypeIds_listHeadsFirstThenSorted();

private:
    std::unique_ptr<QuickHost> m_host;
};

void tst_CadServices::indexTable_isTheCadPalette()
{
    QCOMPARE(OdCmColor::lookUpRGB(7), 0xFFFFFFu);
    QCOMPARE(OdCmColor::lookUpRGB(10), 0xFF0000u);
    QCOMPARE(OdCmColor::lookUpRGB(11), 0xFF7F7Fu);
    QCOMPARE(OdCmColor::lookUpRGB(20), 0xFF3F00u);
    QCOMPARE(OdCmColor::lookUpRGB(21), 0xFF9F7Fu);
    QCOMPARE(OdCmColor::lookUpRGB(250), 0x333333u);
    QCOMPARE(OdCmColor::lookUpRGB(0), 0u);
    QCOMPARE(OdCmColor::lookUpRGB(256), 0u);
    QCOMPARE(indexed(5).blue(), std::uint8_t(255));
    QVERIFY(indexed(7).isForeground());
    QCOMPARE(rgb(1, 2, 3).green(), std::uint8_t(2));
    QCOMPARE(rgb(1, 2, 3).colorIndex(), std::uint16_t(257));
}

void tst_CadServices::acceptsColor_data()
{
    QTest::addColumn<OdCmColor>("color");
    QTest::addColumn<int>("flags");
    QTest::addColumn<bool>("accepted");

    QTest::newRow("index colour") << indexed(42) << 0 << true;
    QTest::newRow("by layer with flag 1") << indexed(256) << 1 << true;
    QTest::newRow("by block without flag 1") << indexed(0) << 2 << false;
    QTest::newRow("true colour with flag 2") << rgb(1, 2, 3) << 2 << true;
    QTest::newRow("true colour without flag 2") << rgb(1, 2, 3) << 1 << false;
    QTest::newRow("none") << OdCmColor(OdCmColor::kNone) << 7 << false;
    QTest::newRow("foreground") << OdCmColor(OdCmColor::kForeground) << 7 << false;
}

void tst_CadServices::acceptsColor()
{
    QFETCH(OdCmColor, color);
    QFETCH(int, flags);
    QFETCH(bool, accepted);

    QCOMPARE(m_host->guiController().acceptsColor(color, flags), accepted);
    QCOMPARE(m_host->guiController().addColor(color, flags).has_value(), accepted);
}

void tst_CadServices::addedTrueColours_areListedFromThenOn()
{
    QuickGuiController& gui = m_host->guiController();
    // Without flags, the seven named colours; with all three, by layer first and the whole palette.
    QCOMPARE(gui.colorIndexList(0), (OdArray<int>{1, 2, 3, 4, 5, 6, 7}));
    QCOMPARE(int(gui.colorIndexList(7).size()), 257);
    QCOMPARE(gui.colorIndexList(7)[0], 256);
    QCOMPARE(gui.addColor(rgb(1, 2, 3), 3), std::optional<int>(257));
    QCOMPARE(gui.addColor(rgb(4, 5, 6), 3), std::optional<int>(258));
    QCOMPARE(gui.addColor(rgb(1, 2, 3), 3), std::optional<int>(257));
    QCOMPARE(gui.addColor(indexed(9), 3), std::optional<int>(9));
    QCOMPARE(gui.colorAt(258, 3), rgb(4, 5, 6));
    QCOMPARE(gui.colorAt(999, 3).colorMethod(), OdCmColor::kNone);
    QCOMPARE(int(gui.colorIndexList(3).size()), 11);
    QCOMPARE(int(gui.colorIndexList(1).size()), 9);
}

void tst_CadServices::colorRowInfo_namesAndDiagonals()
{
    QuickGuiController& gui = m_host->guiController();
    const wxColour byLayer(10, 20, 30);

    const ColorRowInfo layer = gui.colorRowInfo(indexed(256), byLayer, false, 3);
    QVERIFY(layer.drawDiagonal);
    QCOMPARE(qut::toQt(layer.name), QStringLiteral("ByLayer"));
    QCOMPARE(layer.color, byLayer);
    QVERIFY(gui.colorRowInfo(indexed(0), byLayer, false, 3).drawDiagonal);
    // The names of the other rows are read through tst_colormodel's rows.
    QCOMPARE(gui.colorRowInfo(rgb(255, 128, 0), byLayer, false, 3).color, wxColour(255, 128, 0));
    QCOMPARE(gui.colorDialogOptions(3, true), 7u);
    QCOMPARE(gui.colorDialogOptions(1, false), 1u);
}

void tst_CadServices::colorDialog_picksAnIndexColour()
{
    whenShown(QStringLiteral("ColorDialog"), [] {
        click(inShownDialog(QStringLiteral("ColorDialog"), QStringLiteral("index42")));
        QCOMPARE(inShownDialog(QStringLiteral("ColorDialog"), QStringLiteral("pickedName"))->property("text"),
                 QVariant(QStringLiteral("Index color: 42")));
        click(inShownDialog(QStringLiteral("ColorDialog"), QStringLiteral("colorOk")));
    });
    const std::optional<OdCmColor> chosen = m_host->dialogFactory().chooseColor(nullptr, indexed(3), 3);
    QVERIFY(chosen);
    QCOMPARE(*chosen, indexed(42));
}

void tst_CadServices::colorDialog_picksByLayer()
{
    whenShown(QStringLiteral("ColorDialog"), [] {
        click(inShownDialog(QStringLiteral("ColorDialog"), QStringLiteral("byLayer")));
        click(inShownDialog(QStringLiteral("ColorDialog"), QStringLiteral("colorOk")));
    });
    const std::optional<OdCmColor> chosen = m_host->dialogFactory().chooseColor(nullptr, indexed(3), 3);
    QVERIFY(chosen);
    QVERIFY(chosen->isByLayer());
}

void tst_CadServices::colorDialog_picksATrueColourTyped()
{
    whenShown(QStringLiteral("ColorDialog"), [] {
        QQuickItem* field = inShownDialog(QStringLiteral("ColorDialog"), QStringLiteral("trueColor"));
        QVERIFY(field);
        field->forceActiveFocus();
        for (const char character : QByteArrayLiteral("255,128,0"))
            QTest::keyClick(field->window(), character);
        QTest::keyClick(field->window(), Qt::Key_Return);
    });
    const std::optional<OdCmColor> chosen = m_host->dialogFactory().chooseColor(nullptr, rgb(1, 1, 1), 3);
    QVERIFY(chosen);
    QCOMPARE(*chosen, rgb(255, 128, 0));
}

void tst_CadServices::colorDialog_cancelled_givesNothing()
{
    whenShown(QStringLiteral("ColorDialog"), [] {
        click(inShownDialog(QStringLiteral("ColorDialog"), QStringLiteral("index12")));
        click(inShownDialog(QStringLiteral("ColorDialog"), QStringLiteral("colorCancel")));
    });
    QVERIFY(!m_host->dialogFactory().chooseColor(nullptr, indexed(3), 3));

    whenShown(QStringLiteral("ColorDialog"), [] {
        QTest::keyClick(inShownDialog(QStringLiteral("ColorDialog"), QStringLiteral("ColorDialog"))->window(),
                        Qt::Key_Escape);
    });
    QVERIFY(!m_host->dialogFactory().chooseColor(nullptr, indexed(3), 3));
}

void tst_CadServices::colorDialog_showsOnlyWhatTheOptionsAllow()
{
    whenShown(QStringLiteral("ColorDialog"), [] {
        QVERIFY(!inShownDialog(QStringLiteral("ColorDialog"), QStringLiteral("byLayer")));
        QVERIFY(!inShownDialog(QStringLiteral("ColorDialog"), QStringLiteral("trueColor")));
        // Nothing is current while the selection varies, so there is nothing to accept yet.
        QVERIFY(!inShownDialog(QStringLiteral("ColorDialog"), QStringLiteral("colorOk"))->isEnabled());
        click(inShownDialog(QStringLiteral("ColorDialog"), QStringLiteral("index1")));
        click(inShownDialog(QStringLiteral("ColorDialog"), QStringLiteral("colorOk")));
    });
    const std::optional<OdCmColor> chosen =
        m_host->dialogFactory().chooseColor(nullptr, indexed(3), QuickGuiController::DialogVaries);
    QVERIFY(chosen);
    QCOMPARE(*chosen, indexed(1));
}

void tst_CadServices::lineTypeLoader_addsTheLineTypesChecked()
{
    OdDbDatabase* database = ca::curDb();
    whenShown(QStringLiteral("LoadLineTypesDialog"), [] {
        click(inShownDialog(QStringLiteral("LoadLineTypesDialog"), QStringLiteral("lineType_HIDDEN")));
        click(inShownDialog(QStringLiteral("LoadLineTypesDialog"), QStringLiteral("lineType_DASHED")));
        click(inShownDialog(QStringLiteral("LoadLineTypesDialog"), QStringLiteral("loadOk")));
    });
    OdArray<OdString> names;
    QVERIFY(m_host->dialogFactory().loadLineTypes(nullptr, database, names, wxString(), OdString()));

    // In the file's order.
    QCOMPARE(names, (OdArray<OdString>{"DASHED", "HIDDEN"}));
    const auto dashed = OdDbLinetypeTableRecord::cast(database->getLinetypeId("dashed").openObject());
    QVERIFY(dashed);
    QCOMPARE(qut::toQt(dashed->comments()), QStringLiteral("Dashed __ __ __ __ __ __ __ __ __ __ __ __ __ _"));
    QCOMPARE(dashed->numDashes(), 2);

    // What the drawing has is no longer offered.
    QStringList offered;
    m_host->dialogFactory().setupLineTypeLoaderFaker([&offered](const QStringList& available) {
        offered = available;
        return QStringList();
    });
    names.clear();
    QVERIFY(m_host->dialogFactory().loadLineTypes(nullptr, database, names, wxString(), OdString()));
    QVERIFY(!offered.contains(QStringLiteral("DASHED")));
    QVERIFY(offered.contains(QStringLiteral("PHANTOM")));
    QVERIFY(names.isEmpty());
    QVERIFY(!m_host->dialogFactory().loadLineTypes(nullptr, nullptr, names, wxString(), OdString()));
}

void tst_CadServices::lineTypeLoader_cancelled_addsNothing()
{
    OdDbDatabase* database = ca::curDb();
    whenShown(QStringLiteral("LoadLineTypesDialog"), [] {
        click(inShownDialog(QStringLiteral("LoadLineTypesDialog"), QStringLiteral("lineType_HIDDEN")));
        click(inShownDialog(QStringLiteral("LoadLineTypesDialog"), QStringLiteral("loadCancel")));
    });
    OdArray<OdString> names;
    QVERIFY(!m_host->dialogFactory().loadLineTypes(nullptr, database, names, wxString(), OdString()));
    QVERIFY(names.isEmpty());
    QCOMPARE(database->linetypeIds().size(), 3u);
}

void tst_CadServices::lineTypeFile_skipsWhatDoesntRead()
{
    QByteArray text = ";; a comment\n"
                      "*GOOD,Good one\n"
                      "A,.5,-.25,0,-.25\n"
                      "\n"
                      "*BADNUMBER,Bad\n"
                      "A,.5,x\n"
                      "*NOPATTERN,Missing\n"
                      "*NODESCRIPTION\n"
                      "A,1,-1\n"
                      "A,2,-2\n";
    QBuffer file(&text);
    QVERIFY(file.open(QIODevice::ReadOnly));

    const QList<LineTypeDefinition> definitions = readLineTypeDefinitions(file);

    QCOMPARE(definitions.size(), 2);
    QCOMPARE(definitions[0].name, QStringLiteral("GOOD"));
    QCOMPARE(definitions[0].description, QStringLiteral("Good one"));
    QCOMPARE(definitions[0].dashes, (OdArray<double>{0.5, -0.25, 0, -0.25}));
    QCOMPARE(definitions[1].name, QStringLiteral("NODESCRIPTION"));
    QCOMPARE(definitions[1].description, QString());
    QVERIFY(shippedLineTypes().size() >= 5);
}

void tst_CadServices::lineTypeIds_listHeadsFirstThenSorted()
{
    OdDbDatabasePtr database = OdDbDatabase::createObject();
    database->addLinetype("Zigzag", OdString(), {1, -1});
    database->addLinetype("border", OdString(), {1, -1});
    QuickGuiController& gui = m_host->guiController();
    const auto names = [&](bool heads, bool sorted) {
        LineTypeIdList list;
        QStringList result;
        if (!gui.lineTypeIds(database.get(), heads, nullptr, sorted, list))
            return QStringList{"failed"};
        for (const OdDbObjectId& id : list.ids)
            result.append(qut::toQt(OdDbSymbolTableRecord::cast(id.openObject())->getName()));
        return result;
    };

    QCOMPARE(names(true, true), (QStringList{"ByBlock", "ByLayer", "Continuous", "border", "Zigzag"}));
    QCOMPARE(names(false, false), (QStringList{"Continuous", "Zigzag", "border"}));
    LineTypeIdList list;
    QVERIFY(!gui.lineTypeIds(nullptr, true, nullptr, true, list));
    wxBitmap bitmap;
    QVERIFY(!gui.drawLineTypePreview(10, 10, *wxBLACK, database->getLayerZeroId(), OdDbObjectId::kNull, "0", bitmap));
    QVERIFY(!gui.drawLineTypePreview(0, 10, *wxBLACK, database->getLinetypeContinuousId(), OdDbObjectId::kNull,
                                     "Continuous", bitmap));
}

QTEST_MAIN(tst_CadServices)
#include "tst_cadservices.moc"
