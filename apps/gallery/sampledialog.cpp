#include "sampledialog.h"

#include <dlgbridge/controls/qwxcheckbox.h>
#include <dlgbridge/controls/qwxchoice.h>
#include <dlgbridge/core/qwxclientdata.h>
#include <dlgbridge/controls/qwxcombobox.h>
#include <dlgbridge/controls/qwxgauge.h>
#include <dlgbridge/controls/qwxspinctrl.h>
#include <dlgbridge/controls/qwxstatictext.h>
#include <dlgbridge/controls/qwxtextctrl.h>
#include <dlgbridge/controls/qwxtimer.h>
#include <dlgbridge/controls/qwxtogglebutton.h>
#include <dlgbridge/core/qmlchildlist.h>
#include <dlgbridge/core/qtcontrolmodels.h>
#include <dlgbridge/services/idialogfactory.h>

#include <qut/qtconversions.h>

namespace {
constexpr int progressTimerId = 1;
} // namespace

using namespace dbr;

SampleDialog::SampleDialog()
    : m_timer(std::make_unique<qwxTimer>(this, progressTimerId))
{}

SampleDialog::~SampleDialog() = default;

template<typename Control>
Control* SampleDialog::control(const char* name) const
{
    return dynamic_cast<Control*>(FindWindow(name));
}

void SampleDialog::doEventTableInit()
{
    QmlChildList* children = qmlChildren(UseParentList);
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

void SampleDialog::onCreateDialog(qwxInitDialogEvent&)
{
    control<qwxGauge>("progress")->SetRange(100);
    qwxChoice* plotter = control<qwxChoice>("plotter");
    plotter->Append("Office plotter", new qwxStringClientData("//plotserver/office"));
    plotter->Append("Large format", new qwxStringClientData("//plotserver/a0"));
    plotter->Append("PDF file", new qwxStringClientData("pdf:"));
    plotter->SetSelection(0);
    control<qwxStaticText>("status")->SetLabel(wxString("Choose the options, then preview"));
}

void SampleDialog::onPreview()
{
    seen.append(QStringLiteral("preview started"));
    control<qwxGauge>("progress")->SetValue(0);
    m_timer->Start(40);
}

void SampleDialog::onProgress(qwxTimerEvent&)
{
    qwxGauge* gauge = control<qwxGauge>("progress");
    gauge->SetValue(gauge->GetValue() + 20);
    if (gauge->GetValue() < gauge->GetRange())
        return;
    m_timer->Stop();
    seen.append(QStringLiteral("preview finished"));
    control<qwxStaticText>("status")->SetLabel(wxString("Preview ready"));
}

void SampleDialog::onApply()
{
    const wxString summary = wxString::Format("%d copies on %s", control<qwxSpinCtrl>("copies")->GetValue(),
                                              control<qwxChoice>("plotter")->GetStringSelection());
    const int answer =
        models()->dialogFactory->showInfoMessage("Plot settings", qut::odFromWx(summary), nullptr, OkCancel);
    seen.append(QStringLiteral("applied, info box answered %1").arg(answer));
}

bool SampleDialog::beforeOk()
{
    copies = control<qwxSpinCtrl>("copies")->GetValue();
    title = control<qwxTextCtrl>("plotTitle")->GetValue();
    qwxChoice* plotter = control<qwxChoice>("plotter");
    if (const auto* path = dynamic_cast<qwxStringClientData*>(plotter->GetClientObject(plotter->GetSelection())))
        plotterPath = path->GetData();
    paper = control<qwxComboBox>("paper")->GetValue();
    checked = control<qwxCheckBox>("agree")->GetValue();
    if (checked)
        return true;
    seen.append(QStringLiteral("OK refused: layout not checked"));
    control<qwxStaticText>("status")->SetLabel(wxString("Please check the layout first"));
    return false;
}
