#include <dlgbridge/views/treemodel.h>

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

#include <map>
#include <memory>
#include <utility>

namespace {

struct Payload
{
    QString name;
    // Expires when the node holding the payload is destroyed.
    std::shared_ptr<int> life = std::make_shared<int>(0);
};

using Item = qut::TreeItem<Payload>;

// Names in column 0, child counts in column 1.
class NameModel : public qut::TreeModel<Payload>
{
public:
    int columnCount(const QModelIndex& = QModelIndex()) const override { return 2; }

    QVariant dataImpl(const QModelIndex& index, int role) const override
    {
        const Item* item = getTreeItem(index);
        if (!item || role != Qt::DisplayRole)
            return QVariant();
        return index.column() == 0 ? QVariant(item->data.name) : QVariant(int(item->children.size()));
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
        if (!child || child->parent != &parent)
            return QStringLiteral("<bad slot>");
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

} // namespace

class tst_TreeModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_model = std::make_unique<NameModel>(); }

    void strayNodes_warnAndChangeNothing();
    void insertItem_outOfBoundsDestroysTheItemAndStillAnnounces_data();
    void insertItem_outOfBoundsDestroysTheItemAndStillAnnounces();
    void moveItem_data();
    void moveItem();
    void traverseTree_data();
    void traverseTree();
    void randomSequences_keepModelAndNodesSound_data();
    void randomSequences_keepModelAndNodesSound();

private:
    NameModel& attachedModel();

    std::unique_ptr<NameModel> m_model;
};

NameModel& tst_TreeModel::attachedModel()
{
    new QAbstractItemModelTester(m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest,
                                 m_model.get());
    return *m_model;
}

void tst_TreeModel::strayNodes_warnAndChangeNothing()
{
    NameModel& model = attachedModel();
    build(model, "a(b,c,d),e");
    QSignalSpy removals(&model, &QAbstractItemModel::rowsAboutToBeRemoved);
    QVERIFY(removals.isValid());

    // Claims a parent that doesn't hold it: row 0 is a guess.
    Item stray;
    stray.parent = find(model, "d");
    QTest::ignoreMessage(QtWarningMsg, "Tree child item not found in parent");
    const QModelIndex strayIndex = model.createItemIndex(&stray);
    QCOMPARE(strayIndex.row(), 0);
    QCOMPARE(model.getTreeItem(strayIndex), &stray);

    QTest::ignoreMessage(QtWarningMsg, "Tree child item not found in parent");
    model.deleteItem(*find(model, "e"), *find(model, "b"));
    QCOMPARE(dump(model), QStringLiteral("a(b,c,d),e"));
    QCOMPARE(removals.count(), 0);
}

void tst_TreeModel::insertItem_outOfBoundsDestroysTheItemAndStillAnnounces_data()
{
    QTest::addColumn<QString>("parent");
    QTest::addColumn<int>("position");

    QTest::newRow("one past the end") << "" << 4;
    QTest::newRow("into a leaf") << "b" << 1;
}

void tst_TreeModel::insertItem_outOfBoundsDestroysTheItemAndStillAnnounces()
{
    QFETCH(QString, parent);
    QFETCH(int, position);

    // The announced row never arrives, which a tester would rightly flag; it
    // checks the tree that is left instead.
    NameModel& model = *m_model;
    build(model, "a(b),c,d");
    Item* owner = find(model, parent);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QVERIFY(inserted.isValid());
    auto item = makeItem("x");
    const std::weak_ptr<int> life = item->data.life;

    QTest::ignoreMessage(QtDebugMsg, "Trying to insert item out of bounds");
    QCOMPARE(model.insertItem(*owner, position, std::move(item)), nullptr);
    QVERIFY(life.expired());
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(model.getTreeItemOrRoot(inserted.at(0).at(0).value<QModelIndex>()), owner);
    QCOMPARE(inserted.at(0).at(1).toInt(), position);
    QCOMPARE(dump(model), QStringLiteral("a(b),c,d"));
    attachedModel();
}

void tst_TreeModel::moveItem_data()
{
    QTest::addColumn<QString>("item");
    QTest::addColumn<QString>("newParent");
    QTest::addColumn<QString>("tree");

    QTest::newRow("subtree to another node") << "b" << "e" << "a(d),e(f,b(c))";
    QTest::newRow("onto its own parent goes last") << "b" << "a" << "a(d,b(c)),e(f)";
    QTest::newRow("up to the root") << "c" << "" << "a(b,d),e(f),c";
    QTest::newRow("top level down") << "a" << "f" << "e(f(a(b(c),d)))";
    // It would own itself and drop out of the tree.
    QTest::newRow("into its own subtree is refused") << "b" << "c" << "a(b(c),d),e(f)";
    QTest::newRow("onto itself is refused") << "b" << "b" << "a(b(c),d),e(f)";
}

// The tester checks the signals; here the moved nodes keep their addresses.
void tst_TreeModel::moveItem()
{
    QFETCH(QString, item);
    QFETCH(QString, newParent);
    QFETCH(QString, tree);

    NameModel& model = attachedModel();
    build(model, "a(b(c),d),e(f)");
    const auto before = nodesOf(model);
    Item* moved = find(model, item);
    const bool refused = tree == dump(model);

    QCOMPARE(model.moveItem(*moved, *find(model, newParent)), refused ? nullptr : moved);
    QCOMPARE(dump(model), tree);
    QVERIFY(nodesOf(model) == before);
}

void tst_TreeModel::traverseTree_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("answers"); // "b:skip,d:delete"; unnamed nodes continue
    QTest::addColumn<QString>("visits");
    QTest::addColumn<QString>("tree"); // what an editing walk leaves

    const QString all = "a(b(c),e,i),f(g,h)";
    QTest::newRow("children before grandchildren, last pushed first") << "" << "" << "a,f,g,h,b,e,i,c" << all;
    QTest::newRow("from a node") << "a" << "" << "a,b,e,i,c" << all;
    QTest::newRow("skip at the start") << "a" << "a:skip" << "a" << all;
    QTest::newRow("skip keeps the siblings") << "" << "b:skip,f:skip" << "a,f,b,e,i" << all;
    QTest::newRow("stop ends at once") << "" << "g:stop" << "a,f,g" << all;
    QTest::newRow("delete every top-level node") << "" << "a:delete,f:delete" << "a,f" << "";
    QTest::newRow("after a deletion the next sibling comes") << "" << "b:delete,e:delete" << "a,f,g,h,b,e,i"
                                                             << "a(i),f(g,h)";
    QTest::newRow("deleting the start ends the walk") << "a" << "a:delete" << "a" << "f(g,h)";
    QTest::newRow("stop after a deletion") << "" << "f:delete,b:stop" << "a,f,b" << "a(b(c),e,i)";
}

// Both walks, the reading one and the editing one, visit in the same order.
void tst_TreeModel::traverseTree()
{
    QFETCH(QString, start);
    QFETCH(QString, answers);
    QFETCH(QString, visits);
    QFETCH(QString, tree);

    NameModel& model = attachedModel();
    build(model, "a(b(c),e,i),f(g,h)");
    std::map<QString, QString> answerOf;
    for (const QString& pair : answers.split(',', Qt::SkipEmptyParts))
        answerOf[pair.section(':', 0, 0)] = pair.section(':', 1);
    const auto answer = [&answerOf](const Item& item) {
        const auto found = answerOf.find(item.data.name);
        return found == answerOf.end() ? QString() : found->second;
    };
    const QModelIndex from = model.createItemIndex(start.isEmpty() ? nullptr : find(model, start));

    QStringList visited;
    if (!answers.contains("delete")) {
        std::as_const(model).traverseTree(
            [&](const Item& item) {
                visited << item.data.name;
                const QString word = answer(item);
                return word == "skip" ? qut::TreeWalk::SkipChildren
                                      : word == "stop" ? qut::TreeWalk::Stop : qut::TreeWalk::Continue;
            },
            from);
        QCOMPARE(visited.join(','), visits);
        visited.clear();
    }
    model.traverseTree(
        [&](Item& item) {
            visited << item.data.name;
            const QString word = answer(item);
            return word == "skip"     ? qut::TreeWalkEdit::SkipChildren
                   : word == "stop"   ? qut::TreeWalkEdit::Stop
                   : word == "delete" ? qut::TreeWalkEdit::Delete
                                      : qut::TreeWalkEdit::Continue;
        },
        from);
    QCOMPARE(visited.join(','), visits);
    QCOMPARE(dump(model), tree);
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

    NameModel& model = attachedModel();
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
    const auto isWithin = [](const Item* node, const Item* ancestor) {
        for (; node; node = node->parent) {
            if (node == ancestor)
                return true;
        }
        return false;
    };

    for (int step = 0; step < 400; ++step) {
        const auto before = nodesOf(model);
        Item* parent = random.bounded(4) == 0 ? model.root() : anyNode();
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
