#include "qwxtreectrl.h"

#include "qwxtreeevent.h"

#include <dlgbridge/controls/qwximagelist.h>

#include <QDebug>
#include <QImage>
#include <QSortFilterProxyModel>

#include <qut/qtconversions.h>

#include <algorithm>
#include <vector>

namespace dbr {

namespace {

using Item = TreeCtrlModelBase::Item;

enum TreeRole {
    DisplayRole = 256,
    TextColorRole,
    TextBoldRole,
    ImageRole,
    TextImageIndexRole,
    IconRole,
    ToolTipRole,
    DragValidRole,
    CanEditRole,
    RightButtonIconRole,
    EditOnCreationRole,
};

// The model a tree control makes for itself: it alone knows the roles the view binds to.
class TreeCtrlModel : public TreeCtrlModelBase
{
public:
    explicit TreeCtrlModel(qwxTreeCtrl* owner)
        : m_owner(owner)
    {}
    ~TreeCtrlModel() override = default;

    int columnCount(const QModelIndex&) const override { return 1; }

    QHash<int, QByteArray> roleNames() const override
    {
        return {{DisplayRole, "display"},
                {TextColorRole, "textColor"},
                {TextBoldRole, "textBold"},
                {ImageRole, "image"},
                {TextImageIndexRole, "textImageIndex"},
                {IconRole, "icon"},
                {ToolTipRole, "toolTip"},
                {DragValidRole, "dragValid"},
                {CanEditRole, "canEdit"},
                {RightButtonIconRole, "rightButtonIcon"},
                {EditOnCreationRole, "editOnCreation"}};
    }

    // The one field the view writes: it has started the edit asked for on creation.
    bool setDataImpl(const QModelIndex& index, const QVariant& value, int role) override
    {
        Item* item = getTreeItem(index);
        if (role != EditOnCreationRole || !item)
            return false;
        item->data.editOnCreation = value.toBool();
        return true;
    }

    QVariant dataImpl(const QModelIndex& index, int role) const override
    {
        const Item* item = getTreeItem(index);
        if (!item)
            return QVariant();
        const TreeItemData& row = item->data;
        switch (role) {
        case DisplayRole: return row.text;
        case TextColorRole: return row.textColor;
        case TextBoldRole: return row.textBold;
        case ImageRole: return getImageList() ? QVariant(getImageList()->getImage(row.image)) : QVariant();
        case TextImageIndexRole: return row.image;
        case IconRole: return row.icon;
        case ToolTipRole: return row.toolTip;
        case DragValidRole: return row.dragValid;
        case CanEditRole: return canEdit(*item);
        case RightButtonIconRole: return row.rightButtonIcon;
        case EditOnCreationRole: return row.editOnCreation;
        }
        return QVariant();
    }

private:
    // Asked anew on every read: the application's handler decides.
    bool canEdit(const Item& item) const
    {
        const auto& ask = beginLabelEditCallback();
        if (!ask)
            return false;
        qwxTreeEvent event(qwxTreeItemId(const_cast<Item*>(&item)), m_owner);
        ask(event);
        return event.IsAllowed();
    }

    qwxTreeCtrl* const m_owner;
};

Item* nodeOf(const qwxTreeItemId& item)
{
    return static_cast<Item*>(item.data());
}

std::unique_ptr<QAbstractProxyModel> defaultProxy(TreeCtrlModelBase& model)
{
    auto proxy = std::make_unique<QSortFilterProxyModel>();
    proxy->setSortCaseSensitivity(Qt::CaseInsensitive);
    proxy->setSourceModel(&model);
    proxy->setSortRole(DisplayRole);
    return proxy;
}

constexpr const char* missingQmlModel =
    "Unable to get source model. Are you using TreeViewAV with a SortFilterSelectModel?";
constexpr const char* refusedSourceModel =
    "Unable to set associated proxy model sourceModel. Are you using TreeViewAV with a SortFilterSelectModel?";

} // namespace

class TreeCtrlState
{
public:
    TreeCtrlState(qwxTreeCtrl* tree, TreeCtrlModelBase* given)
        : owner(tree)
        , ownedModel(given ? nullptr : std::make_unique<TreeCtrlModel>(tree))
        , model(given ? given : ownedModel.get())
    {}

    // The node of a row, or null for the null id and the root, which has no attributes.
    Item* userNode(const qwxTreeItemId& item) const
    {
        Item* node = nodeOf(item);
        return node == model->root() ? nullptr : node;
    }

    qwxTreeCtrl* owner;
    // Declared before the proxy, so that the proxy goes first.
    std::unique_ptr<TreeCtrlModelBase> ownedModel;
    TreeCtrlModelBase* model;
    std::unique_ptr<QAbstractProxyModel> proxy;
};

qwxTreeCtrl::qwxTreeCtrl(const OdString& name, qwxWindow& parent, TreeCtrlModelBase* model)
    : qwxControl(name, parent)
    , d(std::make_unique<TreeCtrlState>(this, model))
{
    d->proxy = defaultProxy(*d->model);
}

qwxTreeCtrl::qwxTreeCtrl(const OdString& name, qwxWindow& parent, std::unique_ptr<QAbstractProxyModel> proxy,
                         TreeCtrlModelBase* model)
    : qwxControl(name, parent)
    , d(std::make_unique<TreeCtrlState>(this, model))
{
    d->proxy = std::move(proxy);
    d->proxy->setSourceModel(d->model);
}

qwxTreeCtrl::~qwxTreeCtrl() = default;

void qwxTreeCtrl::resyncToUI()
{
    setQmlSourceModel(d->proxy.get());
}

void qwxTreeCtrl::setProxyModel(std::unique_ptr<QAbstractProxyModel> proxy)
{
    // The view's model lets go of the old proxy before it goes.
    setQmlSourceModel(nullptr);
    d->proxy = std::move(proxy);
    d->proxy->setSourceModel(d->model);
    setQmlSourceModel(d->proxy.get());
}

void qwxTreeCtrl::setIsSorted()
{
    d->proxy->sort(0, Qt::AscendingOrder);
}

TreeCtrlModelBase* qwxTreeCtrl::GetModel() const
{
    return d->model;
}

void qwxTreeCtrl::setBeginLabelEditCallback(std::function<void(qwxTreeEvent&)> callback)
{
    d->model->setBeginLabelEditCallback(std::move(callback));
}

qwxTreeItemId qwxTreeCtrl::AddRoot(const wxString& text, int)
{
    d->model->root()->data.text = qut::toQt(text);
    return GetRootItem();
}

qwxTreeItemId qwxTreeCtrl::GetRootItem() const
{
    return qwxTreeItemId(d->model->root());
}

qwxTreeItemId qwxTreeCtrl::InsertItem(const qwxTreeItemId& parent, int position, const wxString& text, int image,
                                      int selectedImage, qwxTreeItemData* data, const wxString& icon,
                                      WantsToBeExpanded expand)
{
    return addItem(parent, position, text, image, selectedImage, data, icon, expand);
}

qwxTreeItemId qwxTreeCtrl::AppendItem(const qwxTreeItemId& parent, const wxString& text, int image, int selectedImage,
                                      qwxTreeItemData* data, const wxString& icon, WantsToBeExpanded expand)
{
    return addItem(parent, -1, text, image, selectedImage, data, icon, expand);
}

qwxTreeItemId qwxTreeCtrl::addItem(const qwxTreeItemId& parent, int position, const wxString& text, int image,
                                   int selectedImage, qwxTreeItemData* data, const wxString& icon,
                                   WantsToBeExpanded expand)
{
    std::unique_ptr<qwxTreeItemData> owned(data);
    Item* parentNode = nodeOf(parent);
    if (!parentNode)
        return qwxTreeItemId();
    auto node = std::make_unique<Item>();
    node->data.image = image;
    node->data.selectedImage = selectedImage;
    node->data.icon = qut::toQt(icon);
    node->data.text = qut::toQt(text);
    node->data.data = std::move(owned);
    Item* added = position < 0 ? d->model->appendItem(*parentNode, std::move(node))
                               : d->model->insertItem(*parentNode, position, std::move(node));
    // Read by the view when it next looks at the row; nothing announces it.
    if (added)
        added->wantsToBeExpanded = expand == ExpandWhenShown;
    return qwxTreeItemId(added);
}

qwxTreeItemId qwxTreeCtrl::MoveItem(const qwxTreeItemId& item, const qwxTreeItemId& newParent)
{
    if (!item.IsOk() || !newParent.IsOk())
        return qwxTreeItemId();
    return qwxTreeItemId(d->model->moveItem(*nodeOf(item), *nodeOf(newParent)));
}

void qwxTreeCtrl::Delete(const qwxTreeItemId& item)
{
    if (!item.IsOk())
        return;
    const QModelIndex parent = d->proxy->mapToSource(d->proxy->parent(wxToQt(item)));
    d->model->deleteItem(*d->model->getTreeItemOrRoot(parent), *nodeOf(item));
}

void qwxTreeCtrl::DeleteChildren(const qwxTreeItemId& item)
{
    if (item.IsOk())
        d->model->deleteChildren(*nodeOf(item));
}

void qwxTreeCtrl::DeleteAllItems()
{
    d->model->reset();
}

int qwxTreeCtrl::GetCount() const
{
    return d->proxy->rowCount(QModelIndex());
}

qwxTreeItemId qwxTreeCtrl::GetFirstChild(const qwxTreeItemId& item, qwxTreeItemIdValue& cookie) const
{
    cookie.position = 0;
    cookie.parent = wxToQt(item);
    // A row the proxy hides has no children to show; its invalid index would mean the top level.
    if (d->userNode(item) && !cookie.parent.isValid())
        return qwxTreeItemId();
    return getWxIndex(d->proxy->index(0, 0, cookie.parent));
}

qwxTreeItemId qwxTreeCtrl::GetNextChild(const qwxTreeItemId&, qwxTreeItemIdValue& cookie) const
{
    ++cookie.position;
    return getWxIndex(d->proxy->index(cookie.position, 0, cookie.parent));
}

bool qwxTreeCtrl::HasChildren(const qwxTreeItemId& item) const
{
    qwxTreeItemIdValue cookie;
    return GetFirstChild(item, cookie).IsOk();
}

bool qwxTreeCtrl::ItemHasChildren(const qwxTreeItemId& item) const
{
    return HasChildren(item);
}

qwxTreeItemId qwxTreeCtrl::GetItemParent(const qwxTreeItemId& item) const
{
    return getWxIndex(d->proxy->parent(wxToQt(item)));
}

qwxTreeItemId qwxTreeCtrl::GetNextSibling(const qwxTreeItemId& item) const
{
    const QModelIndex index = wxToQt(item);
    return index.isValid() ? getWxIndex(index.sibling(index.row() + 1, 0)) : qwxTreeItemId();
}

qwxTreeItemId qwxTreeCtrl::GetPrevSibling(const qwxTreeItemId& item) const
{
    const QModelIndex index = wxToQt(item);
    return index.isValid() && index.row() >= 1 ? getWxIndex(index.sibling(index.row() - 1, 0)) : qwxTreeItemId();
}

int qwxTreeCtrl::GetChildIndexInParent(const qwxTreeItemId& item) const
{
    const Item* node = d->userNode(item);
    return node ? d->model->createItemIndex(node).row() : -1;
}

template<typename Field>
void qwxTreeCtrl::setField(const qwxTreeItemId& item, Field TreeItemData::*member, Field value, int role)
{
    const auto changed = [member, &value](TreeItemData& row) {
        if (row.*member == value)
            return false;
        row.*member = std::move(value);
        return true;
    };
    d->model->update(wxToQt(item, *d->model), changed, {role});
}

template<typename Field>
Field qwxTreeCtrl::field(const qwxTreeItemId& item, Field TreeItemData::*member, Field fallback) const
{
    const Item* node = d->userNode(item);
    return node ? node->data.*member : fallback;
}

wxString qwxTreeCtrl::GetItemText(const qwxTreeItemId& item) const
{
    return qut::wxFromQt(field(item, &TreeItemData::text, QString()));
}

void qwxTreeCtrl::SetItemText(const qwxTreeItemId& item, const wxString& text)
{
    setField(item, &TreeItemData::text, qut::toQt(text), DisplayRole);
}

void qwxTreeCtrl::SetItemTextColour(const qwxTreeItemId& item, const wxColour& colour)
{
    setField(item, &TreeItemData::textColor, qut::toQt(colour), TextColorRole);
}

void qwxTreeCtrl::SetItemBold(const qwxTreeItemId& item, bool bold)
{
    // Reported as a colour change: views of this control repaint the text on that role.
    setField(item, &TreeItemData::textBold, bold, TextColorRole);
}

int qwxTreeCtrl::GetItemImage(const qwxTreeItemId& item) const
{
    return field(item, &TreeItemData::image, -1);
}

void qwxTreeCtrl::SetItemImage(const qwxTreeItemId& item, int image)
{
    setField(item, &TreeItemData::image, image, ImageRole);
}

QString qwxTreeCtrl::GetItemIcon(const qwxTreeItemId& item) const
{
    return field(item, &TreeItemData::icon, QString());
}

void qwxTreeCtrl::SetItemIcon(const qwxTreeItemId& item, const QString& icon)
{
    setField(item, &TreeItemData::icon, icon, IconRole);
}

void qwxTreeCtrl::SetToolTip(const qwxTreeItemId& item, const wxString& toolTip)
{
    setField(item, &TreeItemData::toolTip, qut::toQt(toolTip), ToolTipRole);
}

void qwxTreeCtrl::SetDragValid(const qwxTreeItemId& item, bool valid)
{
    setField(item, &TreeItemData::dragValid, valid, DragValidRole);
}

QString qwxTreeCtrl::GetItemRightButtonIcon(const qwxTreeItemId& item) const
{
    return field(item, &TreeItemData::rightButtonIcon, QString());
}

void qwxTreeCtrl::SetItemRightButtonIcon(const qwxTreeItemId& item, const QString& icon)
{
    setField(item, &TreeItemData::rightButtonIcon, icon, RightButtonIconRole);
}

void qwxTreeCtrl::SetEditOnCreation(const qwxTreeItemId& item, bool edit)
{
    setField(item, &TreeItemData::editOnCreation, edit, EditOnCreationRole);
}

qwxTreeItemData* qwxTreeCtrl::GetItemData(const qwxTreeItemId& item) const
{
    const Item* node = d->userNode(item);
    return node ? node->data.data.get() : nullptr;
}

void qwxTreeCtrl::AssignImageList(qwxImageList* imageList)
{
    d->model->assignImageList(std::shared_ptr<qwxImageList>(imageList));
}

std::shared_ptr<qwxImageList> qwxTreeCtrl::GetImageList() const
{
    return d->model->getImageList();
}

void qwxTreeCtrl::invokeOnItem(const char* method, const qwxTreeItemId& item, QGenericReturnArgument result,
                               QGenericArgument extra) const
{
    QObject* object = findObject();
    if (!object)
        return;
    // The item found here holds the view's model: no second search for it.
    const QVariant index = QVariant::fromValue(qmlIndex(item, object->property("model").value<QObject*>()));
    QMetaObject::invokeMethod(object, method, Qt::DirectConnection, result, Q_ARG(QVariant, index), extra);
}

void qwxTreeCtrl::Expand(const qwxTreeItemId& item)
{
    const QVariant expand(true);
    invokeOnItem("doExpand", item, QGenericReturnArgument(), Q_ARG(QVariant, expand));
}

void qwxTreeCtrl::Collapse(const qwxTreeItemId& item)
{
    invokeOnItem("doCollapse", item);
}

void qwxTreeCtrl::Toggle(const qwxTreeItemId& item)
{
    invokeOnItem("doToggle", item);
}

void qwxTreeCtrl::EditLabel(const qwxTreeItemId& item)
{
    invokeOnItem("editLabel", item);
}

bool qwxTreeCtrl::IsExpanded(const qwxTreeItemId& item) const
{
    QVariant expanded;
    invokeOnItem("getExpanded", item, Q_RETURN_ARG(QVariant, expanded));
    return expanded.toBool();
}

void qwxTreeCtrl::ExpandAll(const qwxTreeItemId& item)
{
    traverseTree([this](const qwxTreeItemId& node) { Expand(node); }, item);
}

void qwxTreeCtrl::CollapseAll(const qwxTreeItemId& item)
{
    // Parents come before their children in the walk, so backwards children close first.
    std::vector<qwxTreeItemId> parents;
    traverseTree([&parents](const qwxTreeItemId& node) { parents.push_back(node); }, item);
    for (auto parent = parents.rbegin(); parent != parents.rend(); ++parent)
        Collapse(*parent);
}

void qwxTreeCtrl::traverseTree(const std::function<void(const qwxTreeItemId&)>& function, const qwxTreeItemId& item)
{
    if (!item.IsOk())
        return;
    std::vector<qwxTreeItemId> pending{item};
    while (!pending.empty()) {
        const qwxTreeItemId node = pending.back();
        pending.pop_back();
        function(node);
        qwxTreeItemIdValue cookie;
        for (qwxTreeItemId child = GetFirstChild(node, cookie); child.IsOk(); child = GetNextChild(child, cookie)) {
            if (HasChildren(child))
                pending.push_back(child);
        }
    }
}

void qwxTreeCtrl::SelectItem(const qwxTreeItemId& item, bool expandParents)
{
    if (QObject* model = qmlModel()) {
        const QObject* view = getQmlProperty("view").value<QObject*>();
        const bool multiple = view && view->property("selectionMode").toInt() != 0;
        QMetaObject::invokeMethod(model, multiple ? "ctrlSelection" : "leftClickSelection", Qt::DirectConnection,
                                  Q_ARG(QModelIndex, qmlIndex(item, model)));
    }
    if (!expandParents)
        return;
    for (qwxTreeItemId parent = GetItemParent(item); parent.IsOk(); parent = GetItemParent(parent)) {
        if (!IsExpanded(parent))
            Expand(parent);
    }
}

void qwxTreeCtrl::clearSelections()
{
    if (QObject* model = qmlModel())
        QMetaObject::invokeMethod(model, "clearSelection", Qt::DirectConnection);
}

int qwxTreeCtrl::GetSelections(std::vector<qwxTreeItemId>& items) const
{
    items.clear();
    const QObject* model = qmlModel();
    const QModelIndexList selected =
        model ? model->property("selectedSourceRows").value<QModelIndexList>() : QModelIndexList();
    for (const QModelIndex& row : selected)
        items.push_back(getWxIndex(row));
    return static_cast<int>(items.size());
}

bool qwxTreeCtrl::IsSelected(const qwxTreeItemId& item) const
{
    std::vector<qwxTreeItemId> selected;
    GetSelections(selected);
    return std::find(selected.begin(), selected.end(), item) != selected.end();
}

qwxTreeItemId qwxTreeCtrl::GetFocusedItem() const
{
    std::vector<qwxTreeItemId> selected;
    return GetSelections(selected) == 1 ? selected.front() : qwxTreeItemId();
}

void qwxTreeCtrl::EnsureVisible(const qwxTreeItemId&)
{
    qDebug() << wrappedObjectName() << "qwxTreeCtrl::EnsureVisible: stub";
}

qwxTreeItemId qwxTreeCtrl::HitTest(const wxPoint&, int&) const
{
    qDebug() << wrappedObjectName() << "qwxTreeCtrl::HitTest: stub";
    return qwxTreeItemId();
}

QModelIndex qwxTreeCtrl::wxToQt(const qwxTreeItemId& item) const
{
    return wxToQt(item, *d->proxy, *d->model);
}

QModelIndex qwxTreeCtrl::wxToQt(const qwxTreeItemId& item, const TreeCtrlModelBase& model) const
{
    return model.createItemIndex(nodeOf(item));
}

QModelIndex qwxTreeCtrl::wxToQt(const qwxTreeItemId& item, const QAbstractProxyModel& proxy,
                                TreeCtrlModelBase& model) const
{
    return proxy.mapFromSource(wxToQt(item, model));
}

qwxTreeItemId qwxTreeCtrl::getWxIndex(const QModelIndex& proxyIndex) const
{
    return qwxTreeItemId(d->model->getTreeItem(d->proxy->mapToSource(proxyIndex)));
}

qwxTreeItemId qwxTreeCtrl::getWxIndexFromSortfilterIndex(const QModelIndex& qmlIndex) const
{
    QModelIndex proxyIndex;
    if (QObject* model = qmlModel())
        QMetaObject::invokeMethod(model, "mapToSource", Qt::DirectConnection, Q_RETURN_ARG(QModelIndex, proxyIndex),
                                  Q_ARG(QModelIndex, qmlIndex));
    return getWxIndex(proxyIndex);
}

QModelIndex qwxTreeCtrl::qmlIndex(const qwxTreeItemId& item, QObject* model) const
{
    QModelIndex index;
    if (model)
        QMetaObject::invokeMethod(model, "mapFromSource", Qt::DirectConnection, Q_RETURN_ARG(QModelIndex, index),
                                  Q_ARG(QModelIndex, wxToQt(item)));
    return index;
}

QObject* qwxTreeCtrl::qmlModel() const
{
    return getQmlProperty("model").value<QObject*>();
}

void qwxTreeCtrl::setQmlSourceModel(QObject* proxy)
{
    QObject* model = qmlModel();
    if (!model) {
        qWarning() << wrappedObjectName() << missingQmlModel;
        return;
    }
    if (!model->setProperty("sourceModel", QVariant::fromValue(proxy)))
        qWarning() << wrappedObjectName() << refusedSourceModel;
}

bool selectInTree(qwxTreeCtrl* tree, const wxString& path)
{
    if (!tree)
        return false;
    const QStringList labels = qut::toQt(path).split(QLatin1Char('|'), Qt::SkipEmptyParts);
    if (labels.isEmpty())
        return false;
    // Each label is searched below the row the one before found, at any depth,
    // and among that row's later siblings.
    const auto find = [tree](const qwxTreeItemId& start, const QString& label) {
        std::vector<qwxTreeItemId> pending{start};
        while (!pending.empty()) {
            qwxTreeItemId node = pending.back();
            pending.pop_back();
            for (; node.IsOk(); node = tree->GetNextSibling(node)) {
                if (qut::toQt(tree->GetItemText(node)).compare(label, Qt::CaseInsensitive) == 0)
                    return node;
                qwxTreeItemIdValue cookie;
                const qwxTreeItemId child = tree->GetFirstChild(node, cookie);
                if (child.IsOk())
                    pending.push_back(child);
            }
        }
        return qwxTreeItemId();
    };
    qwxTreeItemId node = tree->GetRootItem();
    for (const QString& label : labels) {
        node = find(node, label);
        if (!node.IsOk())
            return false;
    }
    tree->SelectItem(node, true);
    return true;
}

} // namespace dbr
