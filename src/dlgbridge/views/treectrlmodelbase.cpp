#include "treectrlmodelbase.h"

#include "qwxtreeevent.h"

#include <dlgbridge/controls/qwximagelist.h>

namespace qut {
template class TreeModel<dbr::TreeItemData>;
} // namespace qut

namespace dbr {

class TreeCtrlModelBasePrivate
{
public:
    std::function<void(qwxTreeEvent&)> beginLabelEditCallback;
    std::shared_ptr<qwxImageList> imageList;
};

TreeCtrlModelBase::TreeCtrlModelBase()
    : d(std::make_unique<TreeCtrlModelBasePrivate>())
{}

TreeCtrlModelBase::~TreeCtrlModelBase() = default;

void TreeCtrlModelBase::assignImageList(std::shared_ptr<qwxImageList> imageList)
{
    d->imageList = std::move(imageList);
}

std::shared_ptr<qwxImageList> TreeCtrlModelBase::getImageList() const
{
    return d->imageList;
}

void TreeCtrlModelBase::setBeginLabelEditCallback(std::function<void(qwxTreeEvent&)> callback)
{
    d->beginLabelEditCallback = std::move(callback);
}

const std::function<void(qwxTreeEvent&)>& TreeCtrlModelBase::beginLabelEditCallback() const
{
    return d->beginLabelEditCallback;
}

} // namespace dbr
