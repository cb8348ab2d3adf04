#include "layertreedialog.h"

#include <dlgbridge/controls/qwxstatictext.h>
#include <dlgbridge/core/qmlchildlist.h>
#include <dlgbridge/views/qwxtreectrl.h>
#include <dlgbridge/views/qwxtreeevent.h>

#include <QSortFilterProxyModel>
#include <QUrl>

#include <map>

#include <qut/qtconversions.h>

#include <iterator>

using namespace dbr;

namespace {

// What the application keeps with each layer row; groups have none.
struct LayerData : qwxTreeItemData
{
    LayerData(const char* colourName, int objectCount, bool isLocked)
        : colour(colourName)
        , objects(objectCount)
        , locked(isLocked)
    {}

    wxString colour;
    int objects;
    bool locked;
};

struct Layer
{
    const char* group;
    const char* name;
    const char* colour;
    int objects;
    bool locked;
};

constexpr Layer layers[] = {
    {"Architecture", "Walls", "white", 412, false}, {"Architecture", "Doors", "yellow", 58, false},
    {"Architecture", "Windows", "cyan", 96, false}, {"Structure", "Columns", "red", 40, false},
    {"Structure", "Beams", "magenta", 75, false},   {"Structure", "Grid", "grey", 22, true},
    {"Services", "Plumbing", "blue", 131, false},   {"Services", "Electrical", "green", 204, false},
};

constexpr int displayRole = 256;

} // namespace

// Shows the rows whose text holds the search, with the groups above them.
class LayerFilter : public QSortFilterProxyModel
{
public:
    LayerFilter()
    {
        setSortRole(displayRole);
        setSortCaseSensitivity(Qt::CaseInsensitive);
        setFilterRole(displayRole);
        setFilterCaseSensitivity(Qt::CaseInsensitive);
        setRecursiveFilteringEnabled(true);
    }
};

LayerTreeDialog::LayerTreeDialog() = default;
LayerTreeDialog::~LayerTreeDialog() = default;

bool LayerTreeDialog::load(wxWindow* parent)
{
    return wut::doLoadDialog(this, parent, QUrl(QStringLiteral("qrc:/gallery/LayerTree.qml")), Resizable, {}, nullptr);
}

qwxTreeCtrl* LayerTreeDialog::tree() const
{
    return dynamic_cast<qwxTreeCtrl*>(FindWindow("layers"));
}

QString LayerTreeDialog::textOf(const qwxTreeItemId& item) const
{
    return qut::toQt(tree()->GetItemText(item));
}

void LayerTreeDialog::doEventTableInit()
{
    auto filter = std::make_unique<LayerFilter>();
    m_filter = filter.get();
    tree()->setProxyModel(std::move(filter));
    tree()->setIsSorted();

    QmlChildList* children = qmlChildren(UseParentList);
    children->connectToTreeSelChangedEvent("layers", [this](qwxTreeEvent& event) {
        seen.append(QStringLiteral("selected %1").arg(textOf(event.GetItem())));
    });
    children->connectToTreeItemGetToolTip("layers", [this](qwxTreeEvent& event) { onToolTip(event); });
    children->connectToBeginLabelEdit("layers", [this](qwxTreeEvent& event) { onBeginLabelEdit(event); });
    children->connectToEndLabelEdit("layers", [this](qwxTreeEvent& event) { onEndLabelEdit(event); });
    children->connectToBeginDrag("layers", [this](qwxDragDropEvent& event) { onBeginDrag(event); });
    children->connectToEndDrag("layers", [this](qwxDragDropEvent& event) { onEndDrag(event); });
    children->connectToTextEvent("filter", [this](qwxCommandEvent& event) { onFilter(event.GetString()); });
}

void LayerTreeDialog::onCreateDialog(qwxInitDialogEvent&)
{
    fillTree();
}

void LayerTreeDialog::fillTree()
{
    qwxTreeCtrl* layerTree = tree();
    const qwxTreeItemId root = layerTree->AddRoot("Layers");
    std::map<QString, qwxTreeItemId> groups;
    for (const Layer& layer : layers) {
        qwxTreeItemId& group = groups[QString::fromLatin1(layer.group)];
        if (!group.IsOk()) {
            group = layerTree->AppendItem(root, layer.group, -1, -1, nullptr, wxString(), qwxTreeCtrl::ExpandWhenShown);
            layerTree->SetItemBold(group, true);
        }
        const qwxTreeItemId row =
            layerTree->AppendItem(group, layer.name, -1, -1, new LayerData(layer.colour, layer.objects, layer.locked));
        if (layer.locked)
            layerTree->SetItemTextColour(row, wxColour(128, 128, 128));
    }
}

void LayerTreeDialog::onToolTip(qwxTreeEvent& event)
{
    const auto* layer = dynamic_cast<LayerData*>(tree()->GetItemData(event.GetItem()));
    if (!layer)
        return;
    event.SetToolTip(wxString::Format("%s: %d objects, %s%s", event.GetLabel(), layer->objects, layer->colour,
                                      layer->locked ? ", locked" : ""));
    seen.append(QStringLiteral("tool tip of %1").arg(textOf(event.GetItem())));
}

// Groups and locked layers keep their names.
void LayerTreeDialog::onBeginLabelEdit(qwxTreeEvent& event)
{
    const auto* layer = dynamic_cast<LayerData*>(tree()->GetItemData(event.GetItem()));
    if (layer && !layer->locked)
        return;
    event.Veto();
    seen.append(QStringLiteral("%1 keeps its name").arg(textOf(event.GetItem())));
}

void LayerTreeDialog::onEndLabelEdit(qwxTreeEvent& event)
{
    seen.append(QStringLiteral("renamed %1 to %2").arg(textOf(event.GetItem()), qut::toQt(event.GetLabel())));
    tree()->SetItemText(event.GetItem(), event.GetLabel());
}

void LayerTreeDialog::onBeginDrag(qwxDragDropEvent& event)
{
    QStringList dragged;
    for (const qwxTreeItemId& item : event.GetSources())
        dragged << textOf(item);
    seen.append(QStringLiteral("dragging %1").arg(dragged.join(QStringLiteral(", "))));
}

// A layer dropped on a group, or on a layer of a group, moves into that group.
void LayerTreeDialog::onEndDrag(qwxDragDropEvent& event)
{
    qwxTreeCtrl* layerTree = tree();
    qwxTreeItemId group = event.GetTarget();
    if (layerTree->GetItemData(group))
        group = layerTree->GetItemParent(group);
    if (!group.IsOk())
        return;
    for (const qwxTreeItemId& item : event.GetSources()) {
        if (!layerTree->GetItemData(item) || layerTree->GetItemParent(item) == group)
            continue;
        layerTree->MoveItem(item, group);
        seen.append(QStringLiteral("moved %1 to %2").arg(textOf(item), textOf(group)));
    }
}

void LayerTreeDialog::onFilter(const wxString& text)
{
    m_filter->setFilterFixedString(qut::toQt(text));
    seen.append(QStringLiteral("filter \"%1\": %2 groups shown").arg(qut::toQt(text)).arg(tree()->GetCount()));
}

bool LayerTreeDialog::beforeOk()
{
    std::vector<qwxTreeItemId> selected;
    tree()->GetSelections(selected);
    chosen.clear();
    for (const qwxTreeItemId& item : selected)
        chosen << textOf(item);
    return true;
}
