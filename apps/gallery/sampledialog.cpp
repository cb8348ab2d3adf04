#include "sampledialog.h"

#include <dlgbridge/controls/qwxcheckbox.h>
#include <dlgbridge/controls/qwxgauge.h>
#include <dlgbridge/controls/qwxspinctrl.h>
#include <dlgbridge/controls/qwxstatictext.h>
#include <dlgbridge/controls/qwxtimer.h>
#include <dlgbridge/controls/qwxtogglebutton.h>
#include <dlgbridge/core/qmlchildlist.h>

#include <qut/qtconversions.h>

namespace {
constexpr int progressTimerId = 1;
constexpr int wxIdApply = 5102;
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
    children->connectToDlgResult(wxIdApply, [this](qwxCommandEvent&) { seen.append(QStringLiteral("applied")); });
    children->connectToTimerEvent(*this, progressTimerId, [this](qwxTimerEvent& event) { onProgress(event); });
}

void SampleDialog::onCreateDialog(qwxInitDialogEvent&)
{
    control<qwxGauge>("progress")->SetRange(100);
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

bool SampleDialog::beforeOk()
{
    copies = control<qwxSpinCtrl>("copies")->GetValue();
    checked = control<qwxCheckBox>("agree")->GetValue();
    if (checked)
        return true;
    seen.append(QStringLiteral("OK refused: layout not checked"));
    control<qwxStaticText>("status")->SetLabel(wxString("Please check the layout first"));
    return false;
}
