#pragma once

#include <dlgbridge/hosting/qwxdialog.h>

#include <QStringList>

#include <wx/string.h>

#include <memory>

namespace dbr {
class qwxTimer;
class qwxTimerEvent;
} // namespace dbr

// Dialog code as the application writes it against the wx-shaped interface.
class PrintDialog : public dbr::qwxDialog
{
public:
    PrintDialog();
    ~PrintDialog() override;

    // Loads the dialog's QML into a window of the application's host.
    bool load(wxWindow* parent = nullptr);

    // What the dialog code saw, in order.
    QStringList seen;
    // Shown by the controls and read back from them by their validators.
    int copies = 1;
    bool checked = false;
    wxString title;
    int plotter = 0;
    wxString paper = "A4";

    wxString plotterPath() const;

    void doEventTableInit() override;
    bool beforeOk() override;

private:
    void onCreateDialog(dbr::qwxInitDialogEvent& event) override;
    void setValidators();
    void buildTitleMenu();
    void onPreview();
    void onApply();
    void onAddScale();
    void onProgress(dbr::qwxTimerEvent& event);

    template<typename Control>
    Control* control(const char* name) const;

    std::unique_ptr<dbr::qwxTimer> m_timer;
};
