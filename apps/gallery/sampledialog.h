#pragma once

#include <dlgbridge/hosting/qwxdialog.h>

#include <QStringList>

#include <wx/string.h>

#include <memory>

namespace dbr {
class qwxTimer;
class qwxTimerEvent;
}

// Dialog code as the application writes it against the wx-shaped interface.
class SampleDialog : public dbr::qwxDialog
{
public:
    SampleDialog();
    ~SampleDialog() override;

    // What the dialog code saw, in order.
    QStringList seen;
    // Read from the controls when the user confirms.
    int copies = 0;
    bool checked = false;
    wxString title;
    wxString plotterPath;
    wxString paper;

    void doEventTableInit() override;
    bool beforeOk() override;

private:
    void onCreateDialog(dbr::qwxInitDialogEvent& event) override;
    void onPreview();
    void onApply();
    void onProgress(dbr::qwxTimerEvent& event);

    template<typename Control>
    Control* control(const char* name) const;

    std::unique_ptr<dbr::qwxTimer> m_timer;
};
