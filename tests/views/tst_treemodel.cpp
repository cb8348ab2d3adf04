#include <dlgbridge/views/treemodel.h>

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

#include <qut/itemroles.h>

#include <functional>
#include <map>
#include <memory>

namespace {

struct Payload
{
    QString name;
    // Expires when the node holding the payload is destroyed.
    std::shared_ptr<int> life = std::make_shared<int>(0);
};

using Item = qut::TreeItem<Payload>;

// Names in column 0, child counts in column 1; the edit role renames.
class NameModel : public qut::TreeModel<Payload>
{
public:
    using TreeModel::TreeModel;

    int columnCount(const QModelIndex& = QModelIndex()) const override { return 2; }

    QVariant dataImpl(const QModelIndex& index, int role) const override
    {
        const Item* item = getTreeItem(index);
        if (!item || role != Qt::DisplayRole)
            return QVariant();
        return index.column() == 0 ? QVariant(item->data.name) : QVariant(int(item->children.size()));
    }

    bool setDataImpl(const QModelIndex& index, const QVariant& value, int role) override
    {
        Item* item = getTreeItem(index);
        if (!item || role != Qt::EditRole)
            return TreeModel::setDataImpl(index, value, role);
        item->data.name = value.toString();
        Q_EMIT dataChanged(index, index, {Qt::DisplayRole});
        return true;
    }
};

std::unique_ptr<Item> makeItem(const QString& name)
{
    auto item = std::make_unique<Item>();
    item->data.name = name;
    return item;
}

// Builds "a(b,c),d" under parent: names, children in parentheses.
void build(NameModel& model, Item& parent, const QString& text, int& pos)
{
    while (pos < text.size() && text[pos] != QLatin1Char(')')) {
        QString name;
        while (pos < text.size() && text[pos].isLetterOrNumber())
            name += text[pos++];
        Item* item = model.appendItem(parent, makeItem(name));
        if (pos < text.size() && text[pos] == QLatin1Char('(')) {
            build(model, *item, text, ++pos);
            ++pos;
        }
        if (pos < text.size() && text[pos] == QLatin1Char(','))
            ++pos;
    }
}

void build(NameModel& model, const QString& text)
{
    int pos = 0;
    build(model, *model.root(), text, pos);
}

// The inverse of build, checking every parent pointer on the way.
QString dump(const Item& parent)
{
    QStringList parts;
    for (const auto& child : parent.children) {
        if (!child)
            return QStringLiteral("<null slot>");
        if (child->parent != &parent)
            return QStringLiteral("<bad parent of %1>").arg(child->data.name);
        parts << child->data.name + (child->children.empty() ? QString() : '(' + dump(*child) + ')');
    }
    return parts.join(',');
}

QString dump(const NameModel& model)
{
    return dump(*model.root());
}

Item* find(NameModel& model, const QString& name)
{
    if (name.isEmpty())
        return model.root();
    return const_cast<Item*>(model.findInTree([&](const Item& item) { return item.data.name == name; }));
}

void collect(const Item& parent, std::map<QString, const Item*>& nodes)
{
    for (const auto& child : parent.children) {
        nodes[child->data.name] = child.get();
        collect(*child, nodes);
    }
}

std::map<QString, const Item*> nodesOf(const NameModel& model)
{
    std::map<QString, const Item*> nodes;
    collect(*model.root(), nodes);
    return nodes;
}

// Structure expectedSignals as "insert(parent,first-last)", "remove(...)", "reset",
// "changed(name)", with "root" for the invalid parent.
class SignalLog : public QObject
{
public:
    explicit SignalLog(NameModel& model)
    {
        const auto where = [&model](const QModelIndex& parent, int first, int last) {
            const Item* item = model.getTreeItem(parent);
            return QStringLiteral("(%1,%2-%3)").arg(item ? item->data.name : QStringLiteral("root")).arg(first).arg(last);
        };
        connect(&model, &QAbstractItemModel::rowsAboutToBeInserted, this,
                [=](const QModelIndex& parent, int first, int last) { lines << "insert" + where(parent, first, last); });
        connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
                [=](const QModelIndex& parent, int first, int last) { lines << "remove" + where(parent, first, last); });
        connect(&model, &QAbstractItemModel::modelAboutToBeReset, this, [this] { lines << "reset"; });
        connect(&model, &QAbstractItemModel::dataChanged, this,
                [this, &model](const QModelIndex& from, const QModelIndex& to, const QVector<int>& roles) {
                    QCOMPARE(from, to);
                    QStringList names;
                    for (int role : roles)
                        names << QString::number(role);
                    lines << QStringLiteral("changed(%1:%2)").arg(model.getTreeItem(from)->data.name, names.join(','));
                });
    }

    QStringList lines;
};

// Visitor answers from "b:skip,d:stop"; unnamed nodes continue.
template<typename Answer>
std::map<QString, Answer> answersFrom(const QString& text, const std::map<QString, Answer>& words)
{
    std::map<QString, Answer> answers;
    for (const QString& pair : text.split(',', Qt::SkipEmptyParts)) {
        const QStringList parts = pair.split(':');
        answers[parts[0]] = words.at(parts[1]);
    }
    return answers;
}

using Deletion = std::function<void(NameModel&)>;

} // namespace

Q_DECLARE_METATYPE(Deletion)

class tst_TreeModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void indexes_refuseWhatIsNoChild();
    void createItemIndex_searchesTheRowAndWarnsForAStrayNode();
    void insertItem_data();
    void insertItem();
    void insertItem_outOfBoundsDestroysTheItemAndStillAnnounces_data();
    void insertItem_outOfBoundsDestroysTheItemAndStillAnnounces();
    void moveItem_data();
    void moveItem();
    void deletions_data();
    void deletions();
    void deleteItem_childOfAnotherParentWarnsAndChangesNothing();
    void reset_keepsTheRootPayload();
    void update_reportsOnlyWhatChanged();
    void expandRole_storesTheFlagOnlyForBooleans();
    void traverseTree_data();
    void traverseTree();
    void traverseTreeEdit_data();
    void traverseTreeEdit();
    void findInTree_returnsTheFirstInWalkOrder();
    void randomSequences_keepModelAndNodesSound_data();
    void randomSequences_keepModelAndNodesSound();

private:
    NameModel* attachedModel();

    std::unique_ptr<NameModel> m_model;
};

void tst_TreeModel::init()
{
    m_model = std::make_unique<NameModel>();
}

void tst_TreeModel::cleanup()
{
    m_model.reset();
}

NameModel* tst_TreeModel::attachedModel()
{
    new QAbstractItemModelTester(m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest,
                                 m_model.get());
    return m_model.get();
}

void tst_TreeModel::indexes_refuseWhatIsNoChild()
{
    NameModel& model = *attachedModel();
    build(model, "a(b(c))");
    const QModelIndex a = model.index(0, 0);
    const QModelIndex aSecondColumn = model.index(0, 1);
    QVERIFY(aSecondColumn.isValid());
    QCOMPARE(model.getTreeItem(aSecondColumn), find(model, "a"));

    QVERIFY(!model.index(0, 0, aSecondColumn).isValid());
    QCOMPARE(model.rowCount(aSecondColumn), 0);
    QVERIFY(!model.index(-1, 0).isValid());
    QVERIFY(!model.index(1, 0).isValid());
    QVERIFY(!model.index(1, 0, a).isValid());

    // A top-level node's parent is the invalid index, never one of the root.
    QVERIFY(!model.parent(a).isValid());
    const QModelIndex b = model.index(0, 0, a);
    const QModelIndex cSecondColumn = model.index(0, 1, b);
    QCOMPARE(model.parent(cSecondColumn), b);
    QCOMPARE(model.parent(b), a);

    QVERIFY(!model.createItemIndex(model.root()).isValid());
    QVERIFY(!model.createItemIndex(nullptr).isValid());
    QVERIFY(!model.createItemIndex(3, 1, model.root()).isValid());
    QCOMPARE(model.getTreeItem(QModelIndex()), nullptr);
    QCOMPARE(model.getTreeItemOrRoot(QModelIndex()), model.root());
    QVERIFY(!model.rootIndex().isValid());
}

void tst_TreeModel::createItemIndex_searchesTheRowAndWarnsForAStrayNode()
{
    NameModel& model = *attachedModel();
    build(model, "a(b,c,d)");
    Item* d = find(model, "d");
    QCOMPARE(model.createItemIndex(d), model.index(2, 0, model.index(0, 0)));
    // The row is taken on trust.
    QCOMPARE(model.createItemIndex(7, 1, d).row(), 7);

    // Claims a parent that doesn't hold it.
    Item stray;
    stray.parent = d;
    QTest::ignoreMessage(QtWarningMsg, "Tree child item not found in parent");
    const QModelIndex strayIndex = model.createItemIndex(&stray);
    QCOMPARE(strayIndex.row(), 0);
    QCOMPARE(model.getTreeItem(strayIndex), &stray);
    QCOMPARE(dump(model), QStringLiteral("a(b,c,d)"));
}

void tst_TreeModel::insertItem_data()
{
    QTest::addColumn<QString>("parent");
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("tree");
    QTest::addColumn<QString>("signal");

    QTest::newRow("front of root") << "" << 0 << "x,a(b,c),d" << "insert(root,0-0)";
    QTest::newRow("between") << "" << 1 << "a(b,c),x,d" << "insert(root,1-1)";
    QTest::newRow("count appends") << "" << 2 << "a(b,c),d,x" << "insert(root,2-2)";
    QTest::newRow("nested middle") << "a" << 1 << "a(b,x,c),d" << "insert(a,1-1)";
    QTest::newRow("under a leaf") << "d" << 0 << "a(b,c),d(x)" << "insert(d,0-0)";
}

void tst_TreeModel::insertItem()
{
    QFETCH(QString, parent);
    QFETCH(int, position);
    QFETCH(QString, tree);
    QFETCH(QString, signal);

    NameModel& model = *attachedModel();
    build(model, "a(b,c),d");
    SignalLog log(model);
    auto item = makeItem("x");
    Item* expected = item.get();
    Item* owner = find(model, parent);

    QCOMPARE(model.insertItem(*owner, position, std::move(item)), expected);
    QCOMPARE(expected->parent, owner);
    QCOMPARE(dump(model), tree);
    QCOMPARE(log.lines, QStringList{signal});
    QCOMPARE(model.createItemIndex(expected).row(), position);
}

void tst_TreeModel::insertItem_outOfBoundsDestroysTheItemAndStillAnnounces_data()
{
    QTest::addColumn<QString>("parent");
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("signal");

    QTest::newRow("one past the end") << "" << 4 << "insert(root,4-4)";
    QTest::newRow("negative") << "" << -1 << "insert(root,-1--1)";
    QTest::newRow("past the end of a child") << "a" << 2 << "insert(a,2-2)";
    QTest::newRow("into a leaf") << "b" << 1 << "insert(b,1-1)";
}

void tst_TreeModel::insertItem_outOfBoundsDestroysTheItemAndStillAnnounces()
{
    QFETCH(QString, parent);
    QFETCH(int, position);
    QFETCH(QString, signal);

    // The announced row never arrives, which a tester would rightly flag; it
    // checks the tree that is left instead.
    NameModel& model = *m_model;
    build(model, "a(b),c,d");
    SignalLog log(model);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QVERIFY(inserted.isValid());
    auto item = makeItem("x");
    const std::weak_ptr<int> life = item->data.life;

    QTest::ignoreMessage(QtDebugMsg, "Trying to insert item out of bounds");
    QCOMPARE(model.insertItem(*find(model, parent), position, std::move(item)), nullptr);
    QVERIFY(life.expired());
    QCOMPARE(log.lines, QStringList{signal});
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(inserted.at(0).at(1).toInt(), position);
    QCOMPARE(dump(model), QStringLiteral("a(b),c,d"));
    attachedModel();
}

void tst_TreeModel::moveItem_data()
{
    QTest::addColumn<QString>("item");
    QTest::addColumn<QString>("newParent");
    QTest::addColumn<QString>("tree");
    QTest::addColumn<QStringList>("expectedSignals");

    QTest::newRow("subtree to another node") << "b" << "e" << "a(d),e(f,b(c))"
                                             << QStringList{"remove(a,0-0)", "insert(e,1-1)"};
    QTest::newRow("onto its own parent goes last") << "b" << "a" << "a(d,b(c)),e(f)"
                                                   << QStringList{"remove(a,0-0)", "insert(a,1-1)"};
    QTest::newRow("up to the root") << "c" << "" << "a(b,d),e(f),c"
                                    << QStringList{"remove(b,0-0)", "insert(root,2-2)"};
    QTest::newRow("top level down") << "a" << "f" << "e(f(a(b(c),d)))"
                                    << QStringList{"remove(root,0-0)", "insert(f,0-0)"};
    // It would own itself and drop out of the tree.
    QTest::newRow("into its own subtree is refused") << "b" << "c" << "a(b(c),d),e(f)" << QStringList();
    QTest::newRow("onto itself is refused") << "b" << "b" << "a(b(c),d),e(f)" << QStringList();
}

void tst_TreeModel::moveItem()
{
    QFETCH(QString, item);
    QFETCH(QString, newParent);
    QFETCH(QString, tree);
    QFETCH(QStringList, expectedSignals);

    NameModel& model = *attachedModel();
    build(model, "a(b(c),d),e(f)");
    const auto before = nodesOf(model);
    SignalLog log(model);
    Item* moved = find(model, item);

    QCOMPARE(model.moveItem(*moved, *find(model, newParent)), expectedSignals.isEmpty() ? nullptr : moved);
    QCOMPARE(dump(model), tree);
    QCOMPARE(log.lines, expectedSignals);
    QVERIFY(nodesOf(model) == before);
}

void tst_TreeModel::deletions_data()
{
    QTest::addColumn<Deletion>("deletion");
    QTest::addColumn<QString>("tree");
    QTest::addColumn<QStringList>("expectedSignals");

    QTest::newRow("row") << Deletion([](NameModel& m) { m.deleteItem(*find(m, "a"), 1); }) << "a(b(c)),e"
                         << QStringList{"remove(a,1-1)"};
    QTest::newRow("child") << Deletion([](NameModel& m) { m.deleteItem(*find(m, "a"), *find(m, "b")); })
                           << "a(d),e" << QStringList{"remove(a,0-0)"};
    QTest::newRow("row past the end") << Deletion([](NameModel& m) { m.deleteItem(*find(m, "a"), 2); })
                                      << "a(b(c),d),e" << QStringList();
    QTest::newRow("negative row") << Deletion([](NameModel& m) { m.deleteItem(*m.root(), -1); }) << "a(b(c),d),e"
                                  << QStringList();
    QTest::newRow("children") << Deletion([](NameModel& m) { m.deleteChildren(*find(m, "a")); }) << "a,e"
                              << QStringList{"remove(a,0-1)"};
    QTest::newRow("children of a leaf") << Deletion([](NameModel& m) { m.deleteChildren(*find(m, "e")); })
                                        << "a(b(c),d),e" << QStringList();
    QTest::newRow("children of the root") << Deletion([](NameModel& m) { m.deleteChildren(*m.root()); }) << ""
                                          << QStringList{"remove(root,0-1)"};
}

void tst_TreeModel::deletions()
{
    QFETCH(Deletion, deletion);
    QFETCH(QString, tree);
    QFETCH(QStringList, expectedSignals);

    NameModel& model = *attachedModel();
    build(model, "a(b(c),d),e");
    const std::weak_ptr<int> lifeOfC = find(model, "c")->data.life;
    SignalLog log(model);

    deletion(model);
    QCOMPARE(dump(model), tree);
    QCOMPARE(log.lines, expectedSignals);
    // A deleted node takes its subtree with it.
    QCOMPARE(!lifeOfC.expired(), tree.contains('c'));
}

void tst_TreeModel::deleteItem_childOfAnotherParentWarnsAndChangesNothing()
{
    NameModel& model = *attachedModel();
    build(model, "a(b),c");
    SignalLog log(model);

    QTest::ignoreMessage(QtWarningMsg, "Tree child item not found in parent");
    model.deleteItem(*find(model, "c"), *find(model, "b"));
    QCOMPARE(dump(model), QStringLiteral("a(b),c"));
    QVERIFY(log.lines.isEmpty());
}

void tst_TreeModel::reset_keepsTheRootPayload()
{
    NameModel& model = *attachedModel();
    model.root()->data.name = "root text";
    build(model, "a(b),c");
    const std::weak_ptr<int> lifeOfB = find(model, "b")->data.life;
    SignalLog log(model);

    model.reset();
    QCOMPARE(log.lines, QStringList{"reset"});
    QCOMPARE(model.rowCount(), 0);
    QVERIFY(lifeOfB.expired());
    QCOMPARE(model.root()->data.name, QStringLiteral("root text"));
}

void tst_TreeModel::update_reportsOnlyWhatChanged()
{
    NameModel& model = *attachedModel();
    build(model, "a(b)");
    SignalLog log(model);
    const QModelIndex b = model.index(0, 0, model.index(0, 0));
    const auto rename = [](Payload& data) {
        data.name = "renamed";
        return true;
    };

    model.update(b, rename, {Qt::DisplayRole, Qt::ToolTipRole});
    QCOMPARE(log.lines, QStringList{"changed(renamed:0,3)"});

    log.lines.clear();
    model.update(b, [](Payload& data) { return data.name.isEmpty(); }, {Qt::DisplayRole});
    QVERIFY(log.lines.isEmpty());

    int calls = 0;
    model.update(QModelIndex(), [&calls](Payload&) { return ++calls > 0; }, {});
    QCOMPARE(calls, 0);
    QVERIFY(log.lines.isEmpty());

    QVERIFY_EXCEPTION_THROWN(model.update(b, std::function<bool(Payload&)>(), {}), std::bad_function_call);
}

void tst_TreeModel::expandRole_storesTheFlagOnlyForBooleans()
{
    NameModel& model = *attachedModel();
    build(model, "a(b)");
    const int role = qut::getWantsToBeExpandedRole();
    QVERIFY(role < Qt::UserRole || role > Qt::UserRole + 10);
    const QModelIndex a = model.index(0, 0);

    QCOMPARE(model.data(a, role), QVariant(false));
    QVERIFY(!model.data(QModelIndex(), role).isValid());
    QVERIFY(!model.setData(a, 1, role));
    QVERIFY(!model.setData(a, QStringLiteral("true"), role));
    QVERIFY(!model.setData(QModelIndex(), true, role));
    QCOMPARE(find(model, "a")->wantsToBeExpanded, false);

    QVERIFY(model.setData(a, true, role));
    QCOMPARE(find(model, "a")->wantsToBeExpanded, true);
    QCOMPARE(model.data(a, role), QVariant(true));
    QCOMPARE(model.data(model.index(0, 0, a), role), QVariant(false));

    // Other roles are the subclass's.
    QVERIFY(model.setData(a, QStringLiteral("z"), Qt::EditRole));
    QCOMPARE(model.data(a, Qt::DisplayRole), QVariant(QStringLiteral("z")));
    QVERIFY(!model.setData(a, QStringLiteral("y"), Qt::ToolTipRole));
}

void tst_TreeModel::traverseTree_data()
{
    QTest::addColumn<QString>("tree");
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("answers");
    QTest::addColumn<QString>("visits");

    QTest::newRow("children before grandchildren") << "a(b,c),d" << "" << "" << "a,d,b,c";
    QTest::newRow("last pushed entered first") << "a(b(c),e),f(g,h)" << "" << "" << "a,f,g,h,b,e,c";
    QTest::newRow("from a node") << "a(b(c),e),f(g,h)" << "a" << "" << "a,b,e,c";
    QTest::newRow("from a leaf") << "a(b(c),e),f(g,h)" << "h" << "" << "h";
    QTest::newRow("skip at the start") << "a(b(c),e),f(g,h)" << "a" << "a:skip" << "a";
    QTest::newRow("stop at the start") << "a(b(c),e),f(g,h)" << "a" << "a:stop" << "a";
    QTest::newRow("skip below a node") << "a(b(c),e),f(g,h)" << "" << "a:skip" << "a,f,g,h";
    QTest::newRow("skip keeps the siblings") << "a(b(c),e),f(g,h)" << "" << "b:skip,f:skip" << "a,f,b,e";
    QTest::newRow("stop ends at once") << "a(b(c),e),f(g,h)" << "" << "g:stop" << "a,f,g";
    QTest::newRow("empty tree") << "" << "" << "" << "";
}

void tst_TreeModel::traverseTree()
{
    QFETCH(QString, tree);
    QFETCH(QString, start);
    QFETCH(QString, answers);
    QFETCH(QString, visits);

    NameModel& model = *attachedModel();
    model.root()->data.name = "root";
    build(model, tree);
    const auto answerOf = answersFrom<qut::TreeWalk>(
        answers, {{"skip", qut::TreeWalk::SkipChildren}, {"stop", qut::TreeWalk::Stop}});
    QStringList visited;
    const NameModel& constModel = model;

    constModel.traverseTree(
        [&](const Item& item) {
            visited << item.data.name;
            const auto answer = answerOf.find(item.data.name);
            return answer == answerOf.end() ? qut::TreeWalk::Continue : answer->second;
        },
        model.createItemIndex(start.isEmpty() ? nullptr : find(model, start)));
    QCOMPARE(visited.join(','), visits);
}

void tst_TreeModel::traverseTreeEdit_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("answers");
    QTest::addColumn<QString>("visits");
    QTest::addColumn<QString>("tree");
    QTest::addColumn<QStringList>("expectedSignals");

    const QString all = "a(b(c),e,i),f(g,h)";
    QTest::newRow("no deletion") << "" << "" << "a,f,g,h,b,e,i,c" << all << QStringList();
    QTest::newRow("every top-level node, always at row 0")
        << "" << "a:delete,f:delete" << "a,f" << "" << QStringList{"remove(root,0-0)", "remove(root,0-0)"};
    QTest::newRow("the next sibling comes next") << "" << "b:delete,e:delete" << "a,f,g,h,b,e,i" << "a(i),f(g,h)"
                                                 << QStringList{"remove(a,0-0)", "remove(a,0-0)"};
    QTest::newRow("the last sibling") << "" << "h:delete" << "a,f,g,h,b,e,i,c" << "a(b(c),e,i),f(g)"
                                      << QStringList{"remove(f,1-1)"};
    QTest::newRow("the start node ends the walk") << "a" << "a:delete" << "a" << "f(g,h)"
                                                  << QStringList{"remove(root,0-0)"};
    QTest::newRow("below the start") << "a" << "e:delete" << "a,b,e,i,c" << "a(b(c),i),f(g,h)"
                                     << QStringList{"remove(a,1-1)"};
    QTest::newRow("stop after a deletion") << "" << "f:delete,b:stop" << "a,f,b" << "a(b(c),e,i)"
                                           << QStringList{"remove(root,1-1)"};
    QTest::newRow("skip") << "" << "a:skip,g:delete" << "a,f,g,h" << "a(b(c),e,i),f(h)"
                          << QStringList{"remove(f,0-0)"};
}

void tst_TreeModel::traverseTreeEdit()
{
    QFETCH(QString, start);
    QFETCH(QString, answers);
    QFETCH(QString, visits);
    QFETCH(QString, tree);
    QFETCH(QStringList, expectedSignals);

    NameModel& model = *attachedModel();
    build(model, "a(b(c),e,i),f(g,h)");
    SignalLog log(model);
    const auto answerOf = answersFrom<qut::TreeWalkEdit>(answers, {{"skip", qut::TreeWalkEdit::SkipChildren},
                                                                   {"stop", qut::TreeWalkEdit::Stop},
                                                                   {"delete", qut::TreeWalkEdit::Delete}});
    QStringList visited;

    model.traverseTree(
        [&](Item& item) {
            visited << item.data.name;
            const auto answer = answerOf.find(item.data.name);
            return answer == answerOf.end() ? qut::TreeWalkEdit::Continue : answer->second;
        },
        model.createItemIndex(start.isEmpty() ? nullptr : find(model, start)));
    QCOMPARE(visited.join(','), visits);
    QCOMPARE(dump(model), tree);
    QCOMPARE(log.lines, expectedSignals);
}

void tst_TreeModel::findInTree_returnsTheFirstInWalkOrder()
{
    NameModel& model = *attachedModel();
    build(model, "a(x1),x2");
    const auto startsWithX = [](const Item& item) { return item.data.name.startsWith('x'); };
    // Depth first would give x1.
    QCOMPARE(model.findInTree(startsWithX)->data.name, QStringLiteral("x2"));
    QCOMPARE(model.findInTree([](const Item& item) { return item.data.name == "y"; }), nullptr);
    QCOMPARE(model.findInTree([](const Item&) { return true; })->data.name, QStringLiteral("a"));
}

void tst_TreeModel::randomSequences_keepModelAndNodesSound_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed : {1u, 7u, 42u, 2024u})
        QTest::addRow("seed %u", seed) << seed;
}

// Inserts, moves, deletions, resets and editing walks in random order. The
// tester checks the model after each; here the nodes that survive a step keep
// their addresses and every parent pointer stays right.
void tst_TreeModel::randomSequences_keepModelAndNodesSound()
{
    QFETCH(quint32, seed);

    NameModel& model = *attachedModel();
    QRandomGenerator random(seed);
    int made = 0;
    std::vector<Item*> nodes;
    const auto anyNode = [&]() -> Item* {
        nodes.clear();
        model.traverseTree([&](Item& item) {
            nodes.push_back(&item);
            return qut::TreeWalkEdit::Continue;
        });
        return nodes.empty() ? nullptr : nodes[random.bounded(int(nodes.size()))];
    };
    const auto anyParent = [&]() { return random.bounded(4) == 0 ? model.root() : anyNode(); };
    const auto isWithin = [](const Item* node, const Item* ancestor) {
        for (; node; node = node->parent) {
            if (node == ancestor)
                return true;
        }
        return false;
    };

    for (int step = 0; step < 400; ++step) {
        const auto before = nodesOf(model);
        Item* parent = anyParent();
        if (!parent)
            parent = model.root();
        const int children = int(parent->children.size());
        switch (random.bounded(9)) {
        case 0:
        case 1:
            QVERIFY(model.insertItem(*parent, random.bounded(children + 1), makeItem(QString::number(made++))));
            break;
        case 2: QVERIFY(model.appendItem(*parent, makeItem(QString::number(made++)))); break;
        case 3:
        case 4:
            if (Item* item = anyNode()) {
                if (!isWithin(parent, item))
                    QCOMPARE(model.moveItem(*item, *parent), item);
            }
            break;
        case 5:
            if (children > 0)
                model.deleteItem(*parent, random.bounded(children));
            break;
        case 6:
            if (Item* item = anyNode(); item && random.bounded(3) == 0)
                model.deleteChildren(*item);
            break;
        case 7: {
            const int victim = random.bounded(7);
            model.traverseTree([&](Item& item) {
                return item.data.name.toInt() % 7 == victim ? qut::TreeWalkEdit::Delete : qut::TreeWalkEdit::Continue;
            });
            break;
        }
        case 8:
            if (random.bounded(20) == 0)
                model.reset();
            else if (Item* item = anyNode())
                QVERIFY(model.setData(model.createItemIndex(item), QString::number(made++), Qt::EditRole));
            break;
        }
        QVERIFY(!dump(model).contains('<'));
        for (const auto& [name, node] : nodesOf(model)) {
            const auto old = before.find(name);
            if (old != before.end())
                QCOMPARE(node, old->second);
        }
    }
}

QTEST_MAIN(tst_TreeModel)
#include "tst_treemodel.moc"
