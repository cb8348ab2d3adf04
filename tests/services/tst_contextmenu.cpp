#include <dlgbridge/services/contextmenu.h>

#include <QTest>

#include <qut/qtconversions.h>

#include <vector>

using namespace dbr;

namespace {

using Entry = qut::TreeItem<qut::MenuData>;

// Fills menus from a script, "i" for an item, "-" for a separator, "s(...)"
// for a sub menu, and records the ids it is asked to run.
class ScriptedBuilder : public dyncmd::MenuBuilder
{
public:
    explicit ScriptedBuilder(const QString& script)
        : m_script(script)
    {
    }

    void executeCommand(int id) override { executed.push_back(id); }

    void fillMenu(dyncmd::IDynamicMenu& menu) override
    {
        int pos = 0;
        fill(menu, pos);
    }

    std::vector<int> executed;

private:
    void fill(dyncmd::IDynamicMenu& menu, int& pos)
    {
        while (pos < m_script.size() && m_script[pos] != ')') {
            const QChar token = m_script[pos++];
            if (token == 'i') {
                menu.addMenuItem(OdString("item"), pos, OdString(), OdString(), true, false, false);
            } else if (token == '-') {
                menu.addMenuSeparator();
            } else if (token == 's') {
                std::unique_ptr<dyncmd::IDynamicMenu> sub = menu.createSubMenu();
                fill(*sub, ++pos);
                ++pos;
                menu.appendSubMenu(OdString("sub"), std::move(sub), OdString());
            }
        }
    }

    QString m_script;
};

// Some other implementation, which a ContextMenu can't take entries from.
class ForeignMenu : public dyncmd::IDynamicMenu
{
public:
    void addMenuItem(const OdString&, int, const OdString&, const OdString&, bool, bool, bool) override { ++m_count; }
    void addMenuSeparator() override { ++m_count; }
    std::size_t topLevelItemsCount() const override { return m_count; }
    std::size_t totalItemsCount() const override { return m_count; }
    std::unique_ptr<dyncmd::IDynamicMenu> createSubMenu() const override { return nullptr; }
    void appendSubMenu(const OdString&, std::unique_ptr<dyncmd::IDynamicMenu>, const OdString&) override {}

private:
    std::size_t m_count = 0;
};

// The script again: "i", "-" and "s(...)" from the entries' type words.
QString scriptOf(const MenuItems& items, const Entry* parent = nullptr)
{
    QString script;
    for (const auto& item : items) {
        if (item->parent != parent)
            return QStringLiteral("<bad parent>");
        const QString& type = item->data.type;
        if (type == "text")
            script += 'i';
        else if (type == "separator")
            script += '-';
        else if (type == "submenu")
            script += "s(" + scriptOf(item->children, item.get()) + ')';
        else
            script += '?';
    }
    return script;
}

} // namespace

class tst_ContextMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addMenuItem_makesATextEntry_data();
    void addMenuItem_makesATextEntry();
    void appendSubMenu_ofAnotherKindAddsNothing();
    void buildContextMenu_dropsOneTrailingSeparator_data();
    void buildContextMenu_dropsOneTrailingSeparator();
};

void tst_ContextMenu::addMenuItem_makesATextEntry_data()
{
    QTest::addColumn<QString>("bitmapName");
    QTest::addColumn<bool>("flags"); // enabled, checkable and checked alike
    QTest::addColumn<QString>("icon");

    QTest::newRow("resource name") << "BMP_16_OPEN" << true << "open.png";
    QTest::newRow("no bitmap") << "" << false << "";
    QTest::newRow("prefix not tested") << "XYZ_32_Save_As" << false << "save_as.png";
}

void tst_ContextMenu::addMenuItem_makesATextEntry()
{
    QFETCH(QString, bitmapName);
    QFETCH(bool, flags);
    QFETCH(QString, icon);

    ContextMenu menu(nullptr);
    menu.addMenuItem(qut::odFromQt("&Open"), 3, OdString(), qut::odFromQt(bitmapName), flags, flags, flags);
    menu.appendSubMenu(OdString("Draw"), menu.createSubMenu(), qut::odFromQt(bitmapName));
    MenuItems items;
    menu.menu(items);
    QCOMPARE(scriptOf(items), QStringLiteral("is()"));
    const qut::MenuData& data = items[0]->data;
    QCOMPARE(data.text, QStringLiteral("&Open"));
    QCOMPARE(data.icon, icon);
    // Sub menu icons are file names already.
    QCOMPARE(items[1]->data.icon, bitmapName);
    // 0 means yes.
    QCOMPARE(data.enabled, flags ? qut::MenuData::Enabled : qut::MenuData::Disabled);
    data.action(); // no executor: nothing to run
}

// Leak checkers show that the foreign menu is freed.
void tst_ContextMenu::appendSubMenu_ofAnotherKindAddsNothing()
{
    ContextMenu menu(nullptr);
    auto foreign = std::make_unique<ForeignMenu>();
    foreign->addMenuItem(OdString("x"), 1, OdString(), OdString(), true, false, false);
    menu.appendSubMenu(OdString("Foreign"), std::move(foreign), OdString());
    QCOMPARE(menu.totalItemsCount(), 0u);
}

void tst_ContextMenu::buildContextMenu_dropsOneTrailingSeparator_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("result");

    QTest::newRow("two trailing") << "i--" << "i-";
    QTest::newRow("leading and doubled stay") << "-i--i" << "-i--i";
    QTest::newRow("only a separator") << "-" << "";
    QTest::newRow("inside a sub menu stays") << "is(i-s(i))" << "is(i-s(i))";
    QTest::newRow("after a sub menu") << "s(i)-" << "s(i)";
}

void tst_ContextMenu::buildContextMenu_dropsOneTrailingSeparator()
{
    QFETCH(QString, script);
    QFETCH(QString, result);

    ScriptedBuilder builder(script);
    const MenuItems items = buildContextMenu(&builder, {});
    QCOMPARE(scriptOf(items), result);
    if (!items.empty() && items[0]->data.type == "text") {
        items[0]->data.action();
        QCOMPARE(builder.executed, std::vector<int>{1});
    }
}

QTEST_MAIN(tst_ContextMenu)
#include "tst_contextmenu.moc"
