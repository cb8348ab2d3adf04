#include <dlgbridge/views/treemodel.h>

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QRegularExpression>
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

std::map<QString, const Item*> nodesOf(const NameModel& model)
{
    std::map<QString, const Item*> nodes;
    model.traverseTree([&](const Item& item) {
        nodes[item.data.name] = &item;
        return qut::TreeWalk::Continue;
    });
    return nodes;
}

} // namespace

class tst_TreeModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_model = std::make_unique<NameModel>(); }

    void refusals_logAndLeaveTheTree();
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

void tst_TreeModel::refusals_logAndLeaveTheTree()
{
    NameModel& model = attachedModel();
    build(model, "a(b),c");
    QSignalSpy announced(&model, &QAbstractItemModel::rowsAboutToBeInserted);
    QVERIFY(announced.isValid());
    for (const int outOfBounds : {3, -1}) {
        auto item = makeItem("x");
        const std::weak_ptr<int> life = item->data.life;
        QTest::ignoreMessage(QtDebugMsg, "Trying to insert item out of bounds");
        QCOMPARE(model.insertItem(*model.root(), outOfBounds, std::move(item)), nullptr);
        QVERIFY(life.expired());
    }
    QCOMPARE(announced.count(), 0);

    QTest::ignoreMessage(QtWarningMsg, "Tree child item not found in parent");
    model.deleteItem(*find(model, "c"), *find(model, "b"));
    QCOMPARE(dump(model), QStringLiteral("a(b),c"));
}

void tst_TreeModel::moveItem_data()
{
    QTest::addColumn<QString>("item");
    QTest::addColumn<QString>("newParent");
    QTest::addColumn<QString>("tree");

    QTest::newRow("subtree to another node") << "b" << "e" << "a(d),e(f,b(c))";
    QTest::newRow("onto its own parent goes last") << "b" << "a" << "a(d,b(c)),e(f)";
    QTest::newRow("up to the root") << "c" << "" << "a(b,d),e(f),c";
    // It would own itself and drop out of the tree.
    QTest::newRow("into its own subtree is refused") << "b" << "c" << "a(b(c),d),e(f)";
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
    QTest::newRow("skip keeps the siblings") << "" << "b:skip,f:skip" << "a,f,b,e,i" << all;
    QTest::newRow("stop ends at once") << "" << "g:stop" << "a,f,g" << all;
    QTest::newRow("after a deletion the next sibling comes") << "" << "b:delete,e:delete" << "a,f,g,h,b,e,i"
                                                             << "a(i),f(g,h)";
    QTest::newRow("deleting the start ends the walk") << "a" << "a:delete" << "a" << "f(g,h)";
}

// The editing walk, whose answers include deletion.
void tst_TreeModel::traverseTree()
{
    QFETCH(QString, start);
    QFETCH(QString, answers);
    QFETCH(QString, visits);
    QFETCH(QString, tree);

    NameModel& model = attachedModel();
    build(model, "a(b(c),e,i),f(g,h)");
    const auto answer = [&answers](const Item& item) {
        const QStringList pair = answers.split(',').filter(QRegularExpression('^' + item.data.name + ':'));
        return pair.isEmpty() ? QString() : pair.first().section(':', 1);
    };
    const QModelIndex from = model.createItemIndex(start.isEmpty() ? nullptr : find(model, start));

    QStringList visited;
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
    for (quint32 seed : {1u, 42u, 2024u})
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
        Item* other = anyNode();
        switch (random.bounded(7)) {
        case 0:
        case 1:
            QVERIFY(model.insertItem(*parent, random.bounded(children + 1), makeItem(QString::number(made++))));
            break;
        case 2:
        case 3:
            if (other && !isWithin(parent, other))
                QCOMPARE(model.moveItem(*other, *parent), other);
            break;
        case 4:
            if (children > 0)
                model.deleteItem(*parent, random.bounded(children));
            break;
        case 5: {
            // Deletes every node with the drawn remainder, some of them inside others.
            const int victim = random.bounded(7);
            model.traverseTree([&](Item& item) {
                return item.data.name.toInt() % 7 == victim ? qut::TreeWalkEdit::Delete : qut::TreeWalkEdit::Continue;
            });
            break;
        }
        case 6:
            if (random.bounded(20) == 0)
                model.reset();
            else if (other && random.bounded(3) == 0)
                model.deleteChildren(*other);
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
