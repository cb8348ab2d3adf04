#pragma once

#include <dlgbridge/core/qmlchildlist.h>
#include <dlgbridge/hosting/qwxdialog.h>

#include <QStringList>
#include <QTimer>

#include <functional>

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

    void resyncToUI() override { journal.append(QStringLiteral("resync")); }
    void doEventTableInit() override
    {
        journal.append(QStringLiteral("eventTable"));
        if (bind)
            bind(*qmlChildren(UseParentList));
        if (markEventTableLoaded)
            m_eventTableLoaded = true;
    }
    void onCreateWindow() override
    {
        journal.append(QStringLiteral("createWindow"));
        if (script)
            QTimer::singleShot(0, this, [this] { script(*this); });
    }
    bool beforeOk() override
    {
        journal.append(QStringLiteral("beforeOk"));
        if (okVetoes == 0)
            return true;
        --okVetoes;
        return false;
    }
    bool beforeCancel() override
    {
        journal.append(QStringLiteral("beforeCancel"));
        return true;
    }

    // The QML item of that name under the dialog's root.
    QObject* item(const char* name) const { return root() ? root()->findChild<QObject*>(QLatin1String(name)) : nullptr; }

private:
    void onCreateDialog(qwxInitDialogEvent&) override { journal.append(QStringLiteral("createDialog")); }
    void onReloadContent() override { journal.append(QStringLiteral("reloadContent")); }
};

} // namespace dbr::test
