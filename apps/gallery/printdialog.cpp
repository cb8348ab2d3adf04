#include "printdialog.h"

#include <dlgbridge/controls/qwxchoice.h>
#include <dlgbridge/controls/qwxgauge.h>
#include <dlgbridge/controls/qwxgenericvalidator.h>
#include <dlgbridge/controls/qwxmenu.h>
#include <dlgbridge/controls/qwxnotebook.h>
#include <dlgbridge/controls/qwxstatictext.h>
#include <dlgbridge/controls/qwxtextctrl.h>
#include <dlgbridge/controls/qwxtextvalidator.h>
#include <dlgbridge/controls/qwxtimer.h>
#include <dlgbridge/controls/qwxtogglebutton.h>
#include <dlgbridge/core/qmlchildlist.h>
#include <dlgbridge/core/qtcontrolmodels.h>
#include <dlgbridge/core/qwxclientdata.h>
#include <dlgbridge/services/idialogfactory.h>

#include <QUrl>

#include <qut/qtconversions.h>

#include <iterator>

namespace {
constexpr int progressTimerId = 1;
// The id qwxMenu::Bind takes for wxEVT_MENU.
constexpr int menuEvent = 8;
constexpr int pensPage = 2;

struct Plotter
{
    const char* label;
    const char* path;
};
constexpr Plotter plotters[] = {
    {"Office plotter", "//plotserver/office"},
    {"Large format", "//plotserver/a0"},
    {"PDF file", "pdf:"},
};

const Plotter& plotterAt(int index)
{
    static constexpr Plotter none{"no plotter", ""};
    return index >= 0 && index < int(std::size(plotters)) ? plotters[index] : none;
}
} // namespace

using namespace dbr;

PrintDialog::PrintDialog()
    : m_timer(std::make_unique<qwxTimer>(this, progressTimerId))
{}

PrintDialog::~PrintDialog() = default;

bool PrintDialog::load(wxWindow* parent)
{
    return wut::doLoadDialog(this, parent, QUrl(QStringLiteral("qrc:/gallery/PrintDialog.qml")), Resizable, {},
                             nullptr);
}

template<typename Control>
Control* PrintDialog::control(const char* name) const
{
    return dynamic_cast<Control*>(FindWindow(name));
}

wxString PrintDialog::plotterPath() const
{
    return plotterAt(plotter).path;
}

void PrintDialog::doEventTableInit()
{
    setValidators();
    buildTitleMenu();
    QmlChildList* children = qmlChildren(UseParentList);
    children->connectToNotebookPageChangedEvent("book", [this](qwxCommandEvent& event) {
        seen.append(QStringLiteral("page %1 shown").arg(event.GetSelection()));
    });
    children->connectToClickEvent("preview", [this](qwxCommandEvent&) { onPreview(); });
    children->connectToCheckBoxEvent("agree", [this](qwxCommandEvent& event) {
        seen.append(event.IsChecked() ? QStringLiteral("layout checked") : QStringLiteral("layout unchecked"));
        control<qwxStaticText>("status")->SetLabel(wxString(event.IsChecked() ? "Ready to plot" : "Not checked yet"));
    });
    children->connectToToggleButtonEvent("style", [this](qwxCommandEvent&) {
        seen.append(QStringLiteral("plot style %1").arg(control<qwxToggleButton>("style")->GetActiveChoice()));
    });
    children->connectToTextEvent("plotTitle", [this](qwxCommandEvent& event) {
        seen.append(QStringLiteral("title \"%1\"").arg(qut::toQt(event.GetString())));
    });
    children->connectToContextMenuEvent("plotTitle", [this](qwxContextMenuEvent&) {
        seen.append(QStringLiteral("title menu popped up"));
        PopupMenu(control<qwxMenu>("titleMenu"), wxDefaultPosition);
    });
    children->connectToChoiceEvent("plotter", [this](qwxCommandEvent& event) {
        const auto* path = dynamic_cast<qwxStringClientData*>(event.GetClientObject());
        seen.append(QStringLiteral("plotter %1 at %2")
                        .arg(event.GetSelection())
                        .arg(path ? qut::toQt(path->GetData()) : QString()));
    });
    children->connectToTextEvent("paper", [this](qwxCommandEvent& event) {
        seen.append(QStringLiteral("paper \"%1\"").arg(qut::toQt(event.GetString())));
    });
    children->connectToDlgResult(wxID_APPLY, [this](qwxCommandEvent&) { onApply(); });
    children->connectToTimerEvent(*this, progressTimerId, [this](qwxTimerEvent& event) { onProgress(event); });
}

// The controls show the members on show and write them back before beforeOk.
void PrintDialog::setValidators()
{
    FindWindow("plotTitle")->SetValidator(qwxTextValidator(wxFILTER_NONE, &title));
    FindWindow("copies")->SetValidator(qwxGenericValidator(&copies));
    FindWindow("agree")->SetValidator(qwxGenericValidator(&checked));
    FindWindow("plotter")->SetValidator(qwxGenericValidator(&plotter));
    FindWindow("paper")->SetValidator(qwxGenericValidator(&paper));
}

void PrintDialog::buildTitleMenu()
{
    qwxMenu* menu = control<qwxMenu>("titleMenu");
    // The entries live in QML: a second load of the wrappers would append them twice.
    menu->Clear();
    menu->Append("addScale", "Add the scale");
    menu->AppendSeparator();
    menu->Append("clearTitle", "Clear the title");
    const auto addScale = [this](qwxCommandEvent&) { onAddScale(); };
    const auto clearTitle = [this](qwxCommandEvent&) { control<qwxTextCtrl>("plotTitle")->SetValue(wxString()); };
    menu->Bind(menuEvent, addScale, "addScale");
    menu->Bind(menuEvent, clearTitle, "clearTitle");
}

void PrintDialog::onCreateDialog(qwxInitDialogEvent&)
{
    control<qwxGauge>("progress")->SetRange(100);
    qwxChoice* choice = control<qwxChoice>("plotter");
    for (const Plotter& entry : plotters)
        choice->Append(entry.label, new qwxStringClientData(entry.path));
    // No plot server here reports a pen table.
    control<qwxNotebook>("book")->HidePage(pensPage);
    control<qwxStaticText>("status")->SetLabel(wxString("Choose the options, then preview"));
}

void PrintDialog::onPreview()
{
    seen.append(QStringLiteral("preview started"));
    control<qwxGauge>("progress")->SetValue(0);
    m_timer->Start(40);
}

void PrintDialog::onProgress(qwxTimerEvent&)
{
    qwxGauge* gauge = control<qwxGauge>("progress");
    gauge->SetValue(gauge->GetValue() + 20);
    if (gauge->GetValue() < gauge->GetRange())
        return;
    m_timer->Stop();
    seen.append(QStringLiteral("preview finished"));
    control<qwxStaticText>("status")->SetLabel(wxString("Preview ready"));
}

void PrintDialog::onAddScale()
{
    seen.append(QStringLiteral("menu: add the scale"));
    qwxTextCtrl* field = control<qwxTextCtrl>("plotTitle");
    field->SetValue(field->GetValue() + " 1:50");
}

void PrintDialog::onApply()
{
    // As wx's own Apply does: the members then hold what the controls show.
    TransferDataFromWindow();
    const wxString summary = wxString::Format("%d copies on %s", copies, plotterAt(plotter).label);
    const int answer =
        models()->dialogFactory->showInfoMessage("Plot settings", qut::odFromWx(summary), nullptr, OkCancel);
    seen.append(QStringLiteral("applied, info box answered %1").arg(answer));
}

bool PrintDialog::beforeOk()
{
    if (checked)
        return true;
    seen.append(QStringLiteral("OK refused: layout not checked"));
    control<qwxStaticText>("status")->SetLabel(wxString("Please check the layout first"));
    return false;
}
