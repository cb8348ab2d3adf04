#include <dlgbridge/controls/qwxmenu.h>
#include <dlgbridge/core/qmlchildlist.h>

#include <QCursor>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QTest>

#include <qut/qtconversions.h>

#include "support/itemwindow.h"
#include "support/logrecorder.h"
#include "support/qmlfixture.h"
#include "support/testhost.h"

using namespace dbr;
using namespace dbr::test;

namespace {

// A kit menu, and a stand-in that can append but has no "clear".
const QByteArray menuQml = R"(
import QtQuick 2.15
import Arvela.Components 1.0
Item {
    width: 400; height: 400
    WxConvMenu { objectName: "menu" }
    Item {
        objectName: "bare"; property string qmlType: "WxConvMenu"
        signal menuItemTriggered(string identifier)
        function append(p, i, l) {}
    }
}
)";

using Handler = std::function<void(qwxCommandEvent&)>;
using BindCall = std::function<void(qwxMenu&, Handler)>;

} // namespace

Q_DECLARE_METATYPE(BindCall)
Q_DECLARE_METATYPE(wxPoint)

class tst_Menu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void walk_wrapsTheMenuButNoneOfItsEntries();
    void subMenu_takesEntriesOfItsParentItem();
    void open_popsUpAtThePointerOrAtThePoint_data();
    void open_popsUpAtThePointerOrAtThePoint();
    void clickedEntry_reachesEveryBinding();
    void bind_keepsTheNewestHandlerOnly();
    void refusedBinding_logsAndConnectsNothing_data();
    void refusedBinding_logsAndConnectsNothing();
    void clear_dropsWrappersOnlyWhenQmlCleared();
    void placeholders_logAndAnswerNeutrally();
    void missingMenu_isNoCrash();

private:
    qwxMenu& menu() { return *m_host->list().child<qwxMenu>("menu"); }
    QObject* item(const char* name) const { return m_host->root()->findChild<QObject*>(QLatin1String(name)); }
    QObject* qmlMenu() const { return item("menu"); }
    Handler recorder() { return [this](qwxCommandEvent& event) { m_heard.append(qut::toQt(event.GetId())); }; }

    std::unique_ptr<QmlFixture> m_qml;
    std::unique_ptr<TestHost> m_host;
    QStringList m_heard;
};

void tst_Menu::init()
{
    m_qml = std::make_unique<QmlFixture>();
    m_host = std::make_unique<TestHost>(m_qml->loadData(menuQml));
    m_host->populate();
    m_heard.clear();
}

void tst_Menu::cleanup()
{
    m_host.reset();
    m_qml.reset();
}

void tst_Menu::walk_wrapsTheMenuButNoneOfItsEntries()
{
    menu().Append("open", "Open", nullptr);
    menu().AppendSubMenu("more", "More");
    m_host->populate();
    QCOMPARE(m_host->list().children().size(), size_t(2));
    QVERIFY(m_host->list().child<qwxMenu>("menu"));
    // The entries are still there, reached by name; a new wrapper starts without them.
    QVERIFY(item("open") && item("more"));
    QCOMPARE(menu().GetMenuItemCount(), 0);
}

void tst_Menu::subMenu_takesEntriesOfItsParentItem()
{
    LogRecorder log;
    qwxMenuItem* open = menu().Append("open", "Open", nullptr);
    menu().AppendSeparator();
    qwxMenuItem* more = menu().AppendSubMenu("more", "More");
    QVERIFY(open && more);
    QVERIFY(menu().Append("deep", "Deep", more));
    // An item whose entry is gone leaves the entry on the menu itself, silently.
    qwxMenuItem gone("gone", menu());
    QVERIFY(menu().Append("top", "Top", &gone));

    QCOMPARE(menu().GetMenuItemCount(), 4);
    QCOMPARE(qmlMenu()->property("count").toInt(), 4);
    QCOMPARE(item("more")->property("count").toInt(), 1);
    QCOMPARE(item("deep")->parent(), item("more"));
    QVERIFY(log.lines().isEmpty());
}

void tst_Menu::open_popsUpAtThePointerOrAtThePoint_data()
{
    QTest::addColumn<wxPoint>("position");
    QTest::addColumn<QPoint>("expected");
    QTest::newRow("default position: at the pointer") << wxDefaultPosition << QPoint(70, 80);
    QTest::newRow("a point") << wxPoint(40, 50) << QPoint(40, 50);
    QTest::newRow("the origin is a point") << wxPoint(0, 0) << QPoint(0, 0);
}

void tst_Menu::open_popsUpAtThePointerOrAtThePoint()
{
    QFETCH(wxPoint, position);
    QFETCH(QPoint, expected);
    ItemWindow window(m_host->root());
    QCursor::setPos(qobject_cast<QQuickItem*>(m_host->root())->window()->mapToGlobal(QPoint(70, 80)));
    menu().Append("open", "Open", nullptr);
    m_host->PopupMenu(&menu(), position);
    QTRY_VERIFY(qmlMenu()->property("opened").toBool());
    QCOMPARE(QPoint(qmlMenu()->property("x").toInt(), qmlMenu()->property("y").toInt()), expected);
}

void tst_Menu::clickedEntry_reachesEveryBinding()
{
    ItemWindow window(m_host->root());
    menu().Append("open", "Open", nullptr);
    qwxMenuItem* save = menu().Append("save", "Save", nullptr);
    menu().Bind(8, recorder(), "open");
    save->bind(recorder());
    m_host->list().connectToMenuEvent("save", [this](qwxCommandEvent& event) {
        m_heard.append("menu event " + qut::toQt(event.GetString()));
    });

    for (int entry : {0, 1}) {
        menu().open(wxPoint(10, 10));
        QTRY_VERIFY(qmlMenu()->property("opened").toBool());
        QQuickItem* shown = nullptr;
        QMetaObject::invokeMethod(qmlMenu(), "itemAt", Q_RETURN_ARG(QQuickItem*, shown), Q_ARG(int, entry));
        // The menu takes a click only on an entry the pointer has entered.
        const QPoint centre = shown->mapToScene(QPointF(shown->width() / 2, shown->height() / 2)).toPoint();
        QTest::mouseMove(shown->window(), centre);
        QTest::mouseClick(shown->window(), Qt::LeftButton, Qt::NoModifier, centre, 20);
        QTRY_VERIFY(!qmlMenu()->property("visible").toBool());
    }
    QCOMPARE(m_heard, (QStringList{"open", "menu event save", "save"}));
}

void tst_Menu::bind_keepsTheNewestHandlerOnly()
{
    qwxMenuItem* open = menu().Append("open", "Open", nullptr);
    open->bind([this](qwxCommandEvent&) { m_heard.append("first"); });
    menu().Bind(8, [this](qwxCommandEvent&) { m_heard.append("second"); }, "open");
    QVERIFY(QMetaObject::invokeMethod(item("open"), "trigger"));
    QCOMPARE(m_heard, QStringList{"second"});
}

void tst_Menu::refusedBinding_logsAndConnectsNothing_data()
{
    QTest::addColumn<BindCall>("bindCall");
    QTest::addColumn<QStringList>("warnings");
    QTest::newRow("an id other than 8") << BindCall([](qwxMenu& m, Handler h) { m.Bind(10, h, "open"); })
                                        << QStringList{"Unknown ID for menu to bind to: 10"};
    QTest::newRow("no item of that name")
        << BindCall([](qwxMenu& m, Handler h) { m.Bind(8, h, "opens"); })
        << QStringList{"Did not find a menu item \"opens\" to connect to"};
    QTest::newRow("the item's entry is gone")
        << BindCall([](qwxMenu& m, Handler h) { qwxMenuItem("gone", m).bind(h); })
        << QStringList{"Did not find object \"gone\"", "\"gone\" Did not find menu item object"};
}

void tst_Menu::refusedBinding_logsAndConnectsNothing()
{
    QFETCH(BindCall, bindCall);
    QFETCH(QStringList, warnings);
    menu().Append("open", "Open", nullptr);
    for (const QString& line : warnings)
        QTest::ignoreMessage(QtWarningMsg, qPrintable(line));
    bindCall(menu(), recorder());
    QVERIFY(QMetaObject::invokeMethod(item("open"), "trigger"));
    QVERIFY(m_heard.isEmpty());
}

void tst_Menu::clear_dropsWrappersOnlyWhenQmlCleared()
{
    menu().Append("open", "Open", nullptr);
    menu().AppendSubMenu("more", "More");
    menu().Clear();
    QCOMPARE(menu().GetMenuItemCount(), 0);
    QCOMPARE(qmlMenu()->property("count").toInt(), 0);
    QVERIFY(!item("open") && !item("more"));

    auto* bare = m_host->list().child<qwxMenu>("bare");
    QVERIFY(bare->Append("open", "Open", nullptr));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("invokeMethod: No such method .*::clear\\(\\)"));
    bare->Clear();
    QCOMPARE(bare->GetMenuItemCount(), 1);
}

void tst_Menu::placeholders_logAndAnswerNeutrally()
{
    qwxMenuItem* open = menu().Append("open", "Open", nullptr);
    for (const char* line : {"qwxMenu::Enable: stub", "qwxMenu::SetLabel: stub", "qwxMenu::FindItem: stub",
                             "qwxMenuItem::GetSubMenu: stub"})
        QTest::ignoreMessage(QtDebugMsg, line);
    menu().Enable("open", false);
    menu().SetLabel("open", "Shut");
    QCOMPARE(menu().FindItem("open"), nullptr);
    QCOMPARE(open->GetSubMenu(), nullptr);
    QVERIFY(item("open")->property("enabled").toBool());
    open->Enable(false);
    QVERIFY(!item("open")->property("enabled").toBool());
}

void tst_Menu::missingMenu_isNoCrash()
{
    qwxMenuItem* open = menu().Append("open", "Open", nullptr);
    delete qmlMenu();
    for (int call = 0; call < 4; ++call)
        QTest::ignoreMessage(QtWarningMsg, "Did not find object \"menu\"");
    QCOMPARE(menu().Append("save", "Save", open), nullptr);
    menu().AppendSeparator();
    menu().open(wxPoint(1, 1));
    menu().Clear();
    QCOMPARE(menu().GetMenuItemCount(), 1);
}

QTEST_MAIN(tst_Menu)
#include "tst_menu.moc"
