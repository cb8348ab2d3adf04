#pragma once

#include <dlgbridge/hosting/qwxdialog.h>

#include <QStringList>

#include <functional>

namespace dbr {
class QmlChildList;
}

namespace dbr::test {

// Dialog code as an application writes it, keeping a journal of what the
// library made it do.
class TestDialog : public qwxDialog
{
public:
    using qwxDialog::qwxDialog;

    QStringList journal;
    // How many calls of beforeOk refuse before one agrees.
    int okVetoes = 0;
    // Binds handlers, from doEventTableInit.
    std::function<void(QmlChildList&)> bind;
    // Runs on the next turn of the event loop after a load, as a user would.
    std::function<void(TestDialog&)> script;
    // Sets the flag that stops later loads, as dialog code may.
    bool markEventTableLoaded = false;

    void resyncToUI() override;
    void doEventTableInit() override;
    void onCreateWindow() override;
    bool beforeOk() override;
    bool beforeCancel() override;

    // The QML item of that name under the dialog's root.
    QObject* item(const char* name) const;

private:
    void onCreateDialog(qwxInitDialogEvent& event) override;
    void onReloadContent() override;
};

} // namespace dbr::test
