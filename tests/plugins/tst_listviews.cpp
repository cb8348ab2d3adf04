// The kit's list and table views, shown in a real window and used with the
// mouse and the keyboard through their wrappers.
#include <support/hostedqml.h>
#include <support/itemwindow.h>

#include <dlgbridge/core/qwxclientdata.h>
#include <dlgbridge/views/qwxchecklistbox.h>
#include <dlgbridge/views/qwxlistctrl.h>

#include <QAbstractItemModelTester>
#include <QQuickItem>
#include <QTest>

#include <functional>

#include <qut/qtconversions.h>

using namespace dbr;
using namespace dbr::test;

namespace {

wxArrayString strings(const QStringList& texts)
{
    wxArrayString result;
    for (const QString& text : texts)
        result.Add(qut::wxFromQt(text));
    return result;
}

// The visible items under item that pass the test; delegates are visual children only.
QList<QQuickItem*> itemsUnder(QObject* item, const std::function<bool(QQuickItem*)>& wanted)
{
    if (item->metaObject()->indexOfMethod("forceLayout()") >= 0)
        QMetaObject::invokeMethod(item, "forceLayout");
    QList<QQuickItem*> found;
    std::function<void(QQuickItem*)> walk = [&](QQuickItem* current) {
        if (!current->isVisible())
            return;
        if (wanted(current))
            found << current;
        for (QQuickItem* child : current->childItems())
            walk(child);
    };
    walk(qobject_cast<QQuickItem*>(item));
    return found;
}

QList<QQuickItem*> labelsUnder(QObject* item)
{
    return itemsUnder(item, [](QQuickItem* candidate) { return candidate->inherits("QQuickText"); });
}

// The shown texts of a view's rows (a table's first column), top to bottom.
QStringList shownTexts(QObject* view)
{
    QList<QQuickItem*> labels;
    for (QQuickItem* label : labelsUnder(view)) {
        const QQuickItem* cell = label->parentItem() ? label->parentItem()->parentItem() : nullptr;
        if (cell && cell->x() < 1)
            labels << label;
    }
    std::sort(labels.begin(), labels.end(), [](QQuickItem* a, QQuickItem* b) {
        return a->mapToScene(QPointF()).y() < b->mapToScene(QPointF()).y();
    });
    QStringList texts;
    for (QQuickItem* label : labels)
        texts << label->property("text").toString();
    return texts;
}

QQuickItem* labelOf(QObject* view, const QString& text)
{
    for (QQuickItem* label : labelsUnder(view)) {
        if (label->property("text").toString() == text)
            return label;
    }
    return nullptr;
}

void click(QQuickItem* item, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = {})
{
    QVERIFY(item);
    QTest::mouseClick(item->window(), button, modifiers,
                      item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint());
}

void doubleClick(QQuickItem* item)
{
    QVERIFY(item);
    QTest::mouseDClick(item->window(), Qt::LeftButton, {},
                       item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint());
}

} // namespace

class tst_ListViews : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void list_clicksAndKeysChooseRowsOfTheModel();
    void list_filterKeepsTheCurrentRow();
    void checkList_clickedBoxesReachTheModel();
    void table_selectsSortsAndEditsByRowsOfTheModel();

private:
    qwxListCtrl& list(const char* name) const { return *m_hosted->host.list().child<qwxListCtrl>(name); }
    QObject* view(const char* name) const { return m_hosted->item(name)->property("view").value<QObject*>(); }

    std::unique_ptr<HostedQml> m_hosted;
    std::unique_ptr<ItemWindow> m_window;
};

void tst_ListViews::init()
{
    m_hosted = std::make_unique<HostedQml>(QStringLiteral("lists.qml"));
    m_window = std::make_unique<ItemWindow>(m_hosted->host.root());
    for (const char* name : {"files", "report"}) {
        auto* model = m_hosted->item(name)->property("proxyModel").value<QAbstractItemModel*>();
        new QAbstractItemModelTester(model, QAbstractItemModelTester::FailureReportingMode::QtTest, model);
    }
}

void tst_ListViews::cleanup()
{
    m_window.reset();
    m_hosted.reset();
}

void tst_ListViews::list_clicksAndKeysChooseRowsOfTheModel()
{
    qwxListCtrl& files = list("files");
    files.SetItemData(2, 0, std::make_unique<qwxStringClientData>("third"));
    QStringList heard;
    m_hosted->host.list().connectToListItemSelectedEvent("files", [&](qwxListEvent& event) {
        const auto* data = dynamic_cast<qwxStringClientData*>(event.GetClientObject());
        heard << QStringLiteral("%1 %2").arg(event.GetIndex()).arg(data ? qut::toQt(data->GetData()) : "-");
    });
    m_hosted->host.list().connectToListDoubleClickedEvent(
        "files", [&](qwxListEvent& event) { heard << QStringLiteral("open %1").arg(event.GetIndex()); });
    files.Bind(qwxListCtrl::RightClickEvent,
               [&](qwxListEvent& event) { heard << QStringLiteral("menu %1").arg(event.GetIndex()); });

    click(labelOf(view("files"), "gamma"));
    QCOMPARE(files.GetSelection(), 2);
    QVERIFY(files.isSelected(2));
    QTest::keyClick(m_window->window(), Qt::Key_Up);
    QCOMPARE(files.GetStringSelection(), wxString("Beta"));
    doubleClick(labelOf(view("files"), "alpha"));
    click(labelOf(view("files"), "Beta"), Qt::RightButton);
    QTRY_COMPARE(heard, QStringList({"2 third", "1 -", "0 -", "open 0", "1 -", "menu 1"}));
    QCOMPARE(files.GetNextItem(-1), 1);
}

void tst_ListViews::list_filterKeepsTheCurrentRow()
{
    qwxListCtrl& files = list("files");
    files.Append(strings({"alphabet", "delta"}));
    files.SetSelection(3);
    files.setSearchString("ALPHA");
    QCOMPARE(shownTexts(view("files")), QStringList({"alpha", "alphabet"}));
    QCOMPARE(files.GetSelection(), 3);
    click(labelOf(view("files"), "alpha"));
    QCOMPARE(files.GetStringSelection(), wxString("alpha"));
    files.setSearchString("");
    QCOMPARE(shownTexts(view("files")).size(), 5);
    files.SetSelection(4);
    files.setSearchString("a$");
    QCOMPARE(shownTexts(view("files")), QStringList({"alpha", "Beta", "gamma", "delta"}));
    QCOMPARE(view("files")->property("currentIndex").toInt(), 3);
}

void tst_ListViews::checkList_clickedBoxesReachTheModel()
{
    auto& options = dynamic_cast<qwxCheckListBox&>(list("options"));
    options.Append(strings({"bold", "italic", "locked"}));
    options.setEnabled(2, false);
    options.Check(0);
    QObject* shown = view("options");
    const auto boxOf = [&](const char* text) {
        return qobject_cast<QQuickItem*>(labelOf(shown, text)->parentItem()->childItems().first());
    };
    QVERIFY(boxOf("bold")->property("checked").toBool());
    click(boxOf("italic"));
    QVERIFY(options.IsChecked(1));
    click(boxOf("bold"));
    QVERIFY(!options.IsChecked(0));
    QVERIFY(!boxOf("bold")->property("checked").toBool());
    click(boxOf("locked"));
    QVERIFY(!options.IsChecked(2));
    QVERIFY(!boxOf("locked")->property("checked").toBool());
}

void tst_ListViews::table_selectsSortsAndEditsByRowsOfTheModel()
{
    qwxListCtrl& report = list("report");
    report.InsertColumn(0, "Layer");
    report.InsertColumn(1, "Colour");
    for (const char* name : {"walls", "doors", "roof"}) {
        const long row = report.InsertItem(report.GetCount(), name);
        report.SetItem(row, 1, QStringLiteral("%1 colour").arg(name).toStdString());
    }
    QStringList edits;
    m_hosted->host.list().connectToTableTextAcceptedEvent("report", [&](qwxGridEvent& event) {
        edits << QStringLiteral("%1,%2 %3").arg(event.GetRow()).arg(event.GetCol()).arg(qut::toQt(event.GetString()));
    });
    QObject* table = view("report");
    QTRY_COMPARE(shownTexts(table), QStringList({"walls", "doors", "roof"}));

    // The header sorts the view; selections and edits still name rows of the model.
    click(labelOf(m_hosted->item("report"), "Layer"));
    QTRY_COMPARE(shownTexts(table), QStringList({"doors", "roof", "walls"}));
    click(labelOf(table, "roof"));
    click(labelOf(table, "walls"), Qt::LeftButton, Qt::ControlModifier);
    QCOMPARE(report.getSelectedTableSourceIndices(), (std::vector<int>{2, 0}));
    QCOMPARE(report.GetSelection(), 2);
    click(labelOf(table, "roof"), Qt::LeftButton, Qt::ControlModifier);
    QCOMPARE(report.GetSelection(), 0);

    doubleClick(labelOf(table, "doors colour"));
    const auto editors = itemsUnder(table, [](QQuickItem* candidate) {
        return candidate->objectName() == QLatin1String("cellEditor");
    });
    QCOMPARE(editors.size(), 1);
    QQuickItem* editor = editors.first();
    QTRY_VERIFY(editor->hasActiveFocus());
    for (char key : std::string("red"))
        QTest::keyClick(m_window->window(), key);
    QTest::keyClick(m_window->window(), Qt::Key_Return);
    QCOMPARE(edits, QStringList{"1,1 red"});

    // A row chosen by the program is a row of the sorted view.
    report.SetSelection(0);
    QCOMPARE(report.GetItemText(report.GetSelection()), wxString("doors"));
    report.setSearchString("o");
    QTRY_COMPARE(shownTexts(table), QStringList({"doors", "roof"}));

    // A plain TableView shows a list control's rows too.
    qwxListCtrl& plain = list("plain");
    plain.InsertColumn(0, "A");
    plain.InsertColumn(1, "B");
    plain.Append("row");
    QTRY_COMPARE(m_hosted->item("plain")->property("rows").toInt(), 1);
    QCOMPARE(m_hosted->item("plain")->property("columns").toInt(), 2);
}

QTEST_MAIN(tst_ListViews)
#include "tst_listviews.moc"
