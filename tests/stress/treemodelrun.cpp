#include "treemodelrun.h"

#include "rng.h"

#include <dlgbridge/views/treemodel.h>

#include <QAbstractItemModelTester>

#include <qut/itemroles.h>

#include <vector>

namespace dbr::stress {

namespace {

using Item = qut::TreeItem<QString>;

class NameModel : public qut::TreeModel<QString>
{
public:
    int columnCount(const QModelIndex& = QModelIndex()) const override { return 2; }

    QVariant dataImpl(const QModelIndex& index, int role) const override
    {
        const Item* item = getTreeItem(index);
        if (!item || (role != Qt::DisplayRole && role != Qt::EditRole))
            return QVariant();
        return index.column() == 0 ? QVariant(item->data) : QVariant(int(item->children.size()));
    }

    bool setDataImpl(const QModelIndex& index, const QVariant& value, int role) override
    {
        Item* item = getTreeItem(index);
        if (!item || role != Qt::EditRole || index.column() != 0)
            return false;
        item->data = value.toString();
        Q_EMIT dataChanged(index, index, {role});
        return true;
    }
};

std::unique_ptr<Item> makeItem(Rng& rng)
{
    auto item = std::make_unique<Item>();
    item->data = QString::number(rng.below(1000));
    return item;
}

} // namespace

class TreeModelRunPrivate
{
public:
    TreeModelRunPrivate()
        : tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal)
    {}

    // Nodes are found afresh for every step: a pointer kept across one may be gone.
    std::vector<Item*> nodes()
    {
        std::vector<Item*> found{model.root()};
        model.traverseTree([&found](Item& item) {
            found.push_back(&item);
            return qut::TreeWalkEdit::Continue;
        });
        return found;
    }

    QModelIndex anyIndex(Rng& rng)
    {
        // The model takes any column as given, so only the ones it has make indexes the tester accepts.
        Item* node = rng.pick(nodes());
        const QModelIndex parent = model.createItemIndex(node);
        return model.index(rng.index(), rng.below(model.columnCount(parent)), parent);
    }

    NameModel model;
    QAbstractItemModelTester tester;
};

TreeModelRun::TreeModelRun()
    : d(std::make_unique<TreeModelRunPrivate>())
{}

TreeModelRun::~TreeModelRun() = default;

// Inserts stay inside the rows: one outside is announced before it is
// refused, which the tester rightly flags.
void TreeModelRun::step(Rng& rng)
{
    NameModel& model = d->model;
    const std::vector<Item*> nodes = d->nodes();
    Item& node = *rng.pick(nodes);
    Item& other = *rng.pick(nodes);
    const int rows = int(node.children.size());
    switch (rng.below(10)) {
    case 0:
    case 1:
        if (nodes.size() < 60)
            model.insertItem(node, rng.below(rows + 1), makeItem(rng));
        break;
    case 2: model.moveItem(node, other); break;
    case 3: model.deleteItem(node, rng.index()); break;
    case 4: model.deleteItem(node, other); break;
    case 5:
        if (rng.percent(30))
            model.deleteChildren(node);
        else if (rng.percent(10))
            model.reset();
        break;
    case 6: {
        const int victim = rng.below(7);
        model.traverseTree(
            [victim](Item& item) {
                return item.data.toInt() % 7 == victim ? qut::TreeWalkEdit::Delete : qut::TreeWalkEdit::Continue;
            },
            model.createItemIndex(&node));
        break;
    }
    case 7:
        model.update(d->anyIndex(rng), [&rng](QString& data) { return rng.percent(50) && data.append('+').size() > 0; },
                     {Qt::DisplayRole});
        break;
    case 8:
        model.setData(d->anyIndex(rng), rng.text(), rng.percent(80) ? Qt::EditRole : qut::getWantsToBeExpandedRole());
        break;
    case 9: model.findInTree([&rng](const Item&) { return rng.percent(10); }); break;
    }
}

} // namespace dbr::stress
