#pragma once

#include <dlgbridge/hosting/qwxdialog.h>

#include <QStringList>

namespace dbr {
class qwxCheckListBox;
class qwxListCtrl;
} // namespace dbr

// Dialog code as the application writes it: the drawings of a project in a
// report list with client data per row, searched, sorted by a heading, a
// layout renamed in its cell, a context menu and opening by double click, and
// the options to open them with in a check list.
class DrawingListDialog : public dbr::qwxDialog
{
public:
    DrawingListDialog();
    ~DrawingListDialog() override;

    bool load(wxWindow* parent = nullptr);

    // What the dialog code saw, in order.
    QStringList seen;
    // The drawings and options chosen when OK was pressed.
    QStringList chosen;

    void doEventTableInit() override;
    bool beforeOk() override;

private:
    void onCreateDialog(dbr::qwxInitDialogEvent& event) override;
    void fillDrawings();
    void fillOptions();
    QString nameOf(int row) const;

    dbr::qwxListCtrl* drawings() const;
    dbr::qwxCheckListBox* options() const;
};
