#pragma once

#include <dlgbridge/dlgbridge_export.h>
#include <dlgbridge/views/treeitemdata.h>
#include <dlgbridge/views/treemodel.h>

#include <functional>
#include <memory>

namespace qut {
// One instantiation for every user of tree controls, made in the library.
extern template class DLGBRIDGE_EXPORT TreeModel<dbr::TreeItemData>;
} // namespace qut

namespace dbr {

class TreeCtrlModelBasePrivate;
class qwxImageList;
class qwxTreeEvent;

// The model behind a tree control. Dialog code may derive its own and give it
// to the control; without one the control makes its own.
class DLGBRIDGE_EXPORT TreeCtrlModelBase : public qut::TreeModel<TreeItemData>
{
public:
    TreeCtrlModelBase();
    ~TreeCtrlModelBase() override;

    void assignImageList(std::shared_ptr<qwxImageList> imageList);
    std::shared_ptr<qwxImageList> getImageList() const;

    // Asked whether a row's label may be edited; without one no label is editable.
    void setBeginLabelEditCallback(std::function<void(qwxTreeEvent&)> callback);
    const std::function<void(qwxTreeEvent&)>& beginLabelEditCallback() const;

private:
    std::unique_ptr<TreeCtrlModelBasePrivate> const d;
};

} // namespace dbr
