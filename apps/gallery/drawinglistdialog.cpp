#include "drawinglistdialog.h"

#include <dlgbridge/core/qmlchildlist.h>
#include <dlgbridge/core/qwxclientdata.h>
#include <dlgbridge/views/qwxchecklistbox.h>
#include <dlgbridge/views/qwxlistctrl.h>

#include <QUrl>

#include <qut/qtconversions.h>

using namespace dbr;

namespace {

// What the application keeps with each drawing row.
struct DrawingData : qwxClientData
{
    DrawingData(const char* drawingPath, int kilobytes)
        : path(drawingPath)
        , size(kilobytes)
    {}

    wxString path;
    int size;
};

struct Drawing
{
    const char* name;
    int kilobytes;
    const char* layout;
};

constexpr Drawing projectDrawings[] = {
    {"Ground floor.dwg", 2310, "Plan"},  {"First floor.dwg", 1984, "Plan"}, {"Roof plan.dwg", 845, "Plan"},
    {"Site plan.dwg", 4120, "Site"},     {"Sections.dwg", 1290, "A-A, B-B"}, {"Details.dwg", 630, "Details"},
};

constexpr const char* openOptions[] = {"Open read-only", "Audit on open", "Load external references"};

enum Column { NameColumn, SizeColumn, LayoutColumn };
enum Option { ReadOnlyOption, AuditOption, ExternalReferencesOption };

} // namespace

DrawingListDialog::DrawingListDialog() = default;
DrawingListDialog::~DrawingListDialog() = default;

bool DrawingListDialog::load(wxWindow* parent)
{
    return wut::doLoadDialog(this, parent, QUrl(QStringLiteral("qrc:/gallery/DrawingList.qml")), Resizable, {},
                             nullptr);
}

qwxListCtrl* DrawingListDialog::drawings() const
{
    return dynamic_cast<qwxListCtrl*>(FindWindow("drawings"));
}

qwxCheckListBox* DrawingListDialog::options() const
{
    return dynamic_cast<qwxCheckListBox*>(FindWindow("options"));
}

QString DrawingListDialog::nameOf(int row) const
{
    return qut::toQt(drawings()->GetItemText(row, NameColumn));
}

void DrawingListDialog::doEventTableInit()
{
    QmlChildList* children = qmlChildren(UseParentList);
    children->connectToTextEvent("search", [this](qwxCommandEvent& event) {
        drawings()->setSearchString(event.GetString());
        seen.append(QStringLiteral("search \"%1\"").arg(qut::toQt(event.GetString())));
    });
    children->connectToListItemSelectedEvent("drawings", [this](qwxListEvent& event) {
        const auto* drawing = dynamic_cast<DrawingData*>(event.GetClientObject());
        seen.append(QStringLiteral("current %1 (%2 kB)").arg(nameOf(event.GetIndex())).arg(drawing ? drawing->size : 0));
    });
    children->connectToListDoubleClickedEvent("drawings", [this](qwxListEvent& event) {
        const auto* drawing = dynamic_cast<DrawingData*>(event.GetClientObject());
        seen.append(QStringLiteral("open %1").arg(drawing ? qut::toQt(drawing->path) : QString()));
    });
    drawings()->Bind(qwxListCtrl::RightClickEvent, [this](qwxListEvent& event) {
        seen.append(QStringLiteral("context menu of %1").arg(nameOf(event.GetIndex())));
    });
    children->connectToTableTextAcceptedEvent("drawings", [this](qwxGridEvent& event) {
        seen.append(QStringLiteral("layout of %1: \"%2\"").arg(nameOf(event.GetRow()), qut::toQt(event.GetString())));
        drawings()->SetItem(event.GetRow(), event.GetCol(), event.GetString());
    });
    children->connectToCheckListboxEvent("options", [this](qwxCommandEvent& event) {
        const int row = event.GetSelection();
        seen.append(QStringLiteral("%1 %2").arg(qut::toQt(options()->GetString(row)),
                                                options()->IsChecked(row) ? "on" : "off"));
        // A read-only drawing can't be audited.
        if (row == ReadOnlyOption)
            options()->setEnabled(AuditOption, !options()->IsChecked(ReadOnlyOption));
    });
}

void DrawingListDialog::onCreateDialog(qwxInitDialogEvent&)
{
    fillDrawings();
    fillOptions();
}

void DrawingListDialog::fillDrawings()
{
    qwxListCtrl* list = drawings();
    list->InsertColumn(NameColumn, "Name", 200);
    list->InsertColumn(SizeColumn, "Size", 80);
    list->InsertColumn(LayoutColumn, "Layout", 120);
    for (const Drawing& drawing : projectDrawings) {
        const long row = list->InsertItem(list->GetCount(), drawing.name);
        list->SetItem(row, SizeColumn, wxString::Format("%5d kB", drawing.kilobytes));
        list->SetItem(row, LayoutColumn, drawing.layout);
        list->SetItemData(row, NameColumn,
                          std::make_unique<DrawingData>(wxString("/projects/tower/") + drawing.name, drawing.kilobytes));
    }
    list->SetItemState(0, qwxListCtrl::SelectedStateBit, qwxListCtrl::SelectedStateBit);
}

void DrawingListDialog::fillOptions()
{
    qwxCheckListBox* list = options();
    for (const char* option : openOptions)
        list->Append(option);
    list->Check(ReadOnlyOption);
    list->Check(ExternalReferencesOption);
    list->setEnabled(AuditOption, false);
}

bool DrawingListDialog::beforeOk()
{
    chosen.clear();
    for (int row : drawings()->getSelectedTableSourceIndices())
        chosen << nameOf(row);
    for (int row = 0; row < options()->GetCount(); ++row) {
        if (options()->IsChecked(row))
            chosen << qut::toQt(options()->GetString(row));
    }
    return true;
}
