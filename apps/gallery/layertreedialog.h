#pragma once

#include <dlgbridge/hosting/qwxdialog.h>
#include <dlgbridge/views/qwxtreeitemid.h>

#include <QStringList>

#include <wx/string.h>

namespace dbr {
class qwxTreeCtrl;
class qwxTreeEvent;
class qwxDragDropEvent;
} // namespace dbr

class LayerFilter;

// Dialog code as the application writes it: the layers of a drawing in their
// groups, sorted, filtered by a search field, renamed in place (but never a
// locked layer), moved between groups by drag and drop, and chosen on OK.
class LayerTreeDialog : public dbr::qwxDialog
{
public:
    LayerTreeDialog();
    ~LayerTreeDialog() override;

    bool load(wxWindow* parent = nullptr);

    // What the dialog code saw, in order.
    QStringList seen;
    // The layers selected when OK was pressed.
    QStringList chosen;

    void doEventTableInit() override;
    bool beforeOk() override;

private:
    void onCreateDialog(dbr::qwxInitDialogEvent& event) override;
    void fillTree();
    void onToolTip(dbr::qwxTreeEvent& event);
    void onBeginLabelEdit(dbr::qwxTreeEvent& event);
    void onEndLabelEdit(dbr::qwxTreeEvent& event);
    void onBeginDrag(dbr::qwxDragDropEvent& event);
    void onEndDrag(dbr::qwxDragDropEvent& event);
    void onFilter(const wxString& text);
    QString textOf(const dbr::qwxTreeItemId& item) const;

    dbr::qwxTreeCtrl* tree() const;

    LayerFilter* m_filter = nullptr;
};
