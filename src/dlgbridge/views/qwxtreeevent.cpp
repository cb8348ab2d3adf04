#include "qwxtreeevent.h"

#include "qwxtreectrl.h"

#include <QDebug>

#include <qut/qtconversions.h>

#include <optional>

namespace dbr {

class qwxTreeEventPrivate
{
public:
    qwxTreeItemId oldItem;
    qwxTreeItemId item;
    qwxTreeCtrl* tree;
    bool allowed = true;
    std::optional<QString> label;
};

class qwxDragDropEventPrivate
{
public:
    std::vector<qwxTreeItemId> sources;
    qwxTreeItemId target;
    int keyModifiers;
    qwxTreeCtrl* tree;
    EDropPositionType dropType;
};

qwxTreeEvent::qwxTreeEvent(const qwxTreeItemId& item, qwxTreeCtrl* tree)
    : qwxTreeEvent(item, item, tree)
{}

qwxTreeEvent::qwxTreeEvent(const qwxTreeItemId& item, const QString& label, qwxTreeCtrl* tree)
    : qwxTreeEvent(item, item, tree)
{
    d->label = label;
}

qwxTreeEvent::qwxTreeEvent(const qwxTreeItemId& item, const qwxTreeItemId& oldItem, qwxTreeCtrl* tree)
    : qwxEvent(tree)
    , d(std::make_unique<qwxTreeEventPrivate>(qwxTreeEventPrivate{oldItem, item, tree, true, std::nullopt}))
{}

qwxTreeEvent::qwxTreeEvent(qwxTreeEvent&& other) noexcept = default;
qwxTreeEvent& qwxTreeEvent::operator=(qwxTreeEvent&& other) noexcept = default;
qwxTreeEvent::~qwxTreeEvent() = default;

qwxTreeItemId qwxTreeEvent::GetItem() const
{
    return d->item;
}

qwxTreeItemId qwxTreeEvent::GetOldItem() const
{
    return d->oldItem;
}

qwxWindow* qwxTreeEvent::GetEventObject() const
{
    return d->tree;
}

void qwxTreeEvent::Veto()
{
    d->allowed = false;
}

void qwxTreeEvent::Allow()
{
    d->allowed = true;
}

bool qwxTreeEvent::IsAllowed() const
{
    return d->allowed;
}

wxString qwxTreeEvent::GetLabel() const
{
    if (d->label)
        return qut::wxFromQt(*d->label);
    return d->tree ? d->tree->GetItemText(d->item) : wxString();
}

bool qwxTreeEvent::IsEditCancelled() const
{
    qDebug("qwxTreeEvent::IsEditCancelled: stub");
    return false;
}

void qwxTreeEvent::SetToolTip(const wxString& toolTip)
{
    if (d->tree)
        d->tree->SetToolTip(d->item, toolTip);
}

void qwxTreeEvent::SetDragValid(bool valid)
{
    if (d->tree)
        d->tree->SetDragValid(d->item, valid);
}

qwxDragDropEvent::qwxDragDropEvent(const std::vector<qwxTreeItemId>& sources, int keyModifiers, qwxTreeCtrl* tree)
    : qwxDragDropEvent(sources, qwxTreeItemId(), keyModifiers, tree, DropOnto)
{}

qwxDragDropEvent::qwxDragDropEvent(const std::vector<qwxTreeItemId>& sources, const qwxTreeItemId& target,
                                   int keyModifiers, qwxTreeCtrl* tree, EDropPositionType type)
    : qwxEvent(tree)
    , d(std::make_unique<qwxDragDropEventPrivate>(qwxDragDropEventPrivate{sources, target, keyModifiers, tree, type}))
{}

qwxDragDropEvent::qwxDragDropEvent(qwxDragDropEvent&& other) noexcept = default;
qwxDragDropEvent& qwxDragDropEvent::operator=(qwxDragDropEvent&& other) noexcept = default;
qwxDragDropEvent::~qwxDragDropEvent() = default;

std::vector<qwxTreeItemId> qwxDragDropEvent::GetSources() const
{
    return d->sources;
}

qwxTreeItemId qwxDragDropEvent::GetTarget() const
{
    return d->target;
}

int qwxDragDropEvent::GetKeyModifiers() const
{
    return d->keyModifiers;
}

EDropPositionType qwxDragDropEvent::GetDropType() const
{
    return d->dropType;
}

qwxWindow* qwxDragDropEvent::GetEventObject() const
{
    return d->tree;
}

void qwxDragDropEvent::SetDragValid(bool valid)
{
    if (!d->tree)
        return;
    for (const qwxTreeItemId& source : d->sources)
        d->tree->SetDragValid(source, valid);
}

} // namespace dbr
