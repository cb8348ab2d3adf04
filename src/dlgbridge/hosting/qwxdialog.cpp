#include "qwxdialog.h"

#include "qwxdialogcontroller.h"

#include <dlgbridge/core/qmlchildlist.h>
#include <dlgbridge/core/qtcontrolmodels.h>
#include <dlgbridge/core/qwxevent.h>
#include <dlgbridge/services/iguicontroller.h>

#include <QDebug>
#include <QPointer>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTimer>

#include <wx/defs.h>

#include <oa/OaApp.h>
#include <qut/qtconversions.h>

namespace dbr {

namespace {

// The internal dialog of a qwxDialog built around QML that exists already:
// there is no window to run, so it answers neutrally.
class QtDialog : public IWxQtDialog
{
public:
    explicit QtDialog(QQuickItem* item)
        : m_item(item)
    {}

    void Show() override {}
    int ShowModal() override { return 0; }
    void Hide(int) override {}
    int GetReturnCode() override { return 0; }
    bool IsModal() override { return false; }
    void EndModal(int) override {}
    void hostOperationA() override {}
    void hostOperationB() override {}
    void SetTitle(const QString&) override {}
    bool isReady() override { return false; }
    bool waitForExposed() override { return false; }
    void aboutToBeDestroyed() override {}
    QUrl sourceUrl() override { return QUrl(); }
    QObject* root() override { return m_item; }
    wxWindow* wx() override { return nullptr; }

    QQmlEngine* engine() override
    {
        QQmlContext* context = QQmlEngine::contextForObject(m_item);
        return context ? context->engine() : nullptr;
    }

private:
    // QML that a dialog binds to may be deleted under it.
    QPointer<QQuickItem> m_item;
};

// The application must exist before its first dialog; without one the
// dialog still stands, with no services to hand down.
void takeApplicationServices(QtControlModels& models)
{
    if (const oa::OaApp* application = oa::OaApp::s_app) {
        models.guiController = application->guiController();
        models.dialogFactory = application->dialogFactory();
    }
}

} // namespace

class qwxDialogPrivate
{
public:
    explicit qwxDialogPrivate(qwxWindow& window)
        : children(window)
    {
        takeApplicationServices(models);
    }

    std::unique_ptr<QwxDialogController> controller;
    std::unique_ptr<IWxQtDialog> internalDialog;
    QtControlModels models;
    QmlChildList children;
    std::function<void(qwxInitDialogEvent&)> initFunctor;
};

qwxDialog::qwxDialog()
    : d(std::make_unique<qwxDialogPrivate>(*this))
{}

qwxDialog::qwxDialog(QQuickItem* item)
    : qwxDialog()
{
    d->internalDialog = std::make_unique<QtDialog>(item);
    loadContent();
}

qwxDialog::~qwxDialog()
{
    if (!d->internalDialog)
        return;
    try {
        d->internalDialog->aboutToBeDestroyed();
    } catch (...) {
        // A destructor must not throw, and the dialog goes either way.
    }
}

bool qwxDialog::beforeOk()
{
    return true;
}

bool qwxDialog::beforeCancel()
{
    return true;
}

QString qwxDialog::wrappedObjectName() const
{
    const QObject* top = root();
    return top ? top->objectName() : QString();
}

QObject* qwxDialog::root() const
{
    return d->internalDialog ? d->internalDialog->root() : nullptr;
}

wxWindow* qwxDialog::wx()
{
    return d->internalDialog ? d->internalDialog->wx() : nullptr;
}

QtControlModels* qwxDialog::models()
{
    return &d->models;
}

const QmlChildList* qwxDialog::qmlChildren(UseParentListIfNone) const
{
    return &d->children;
}

QmlChildList* qwxDialog::qmlChildren(UseParentListIfNone)
{
    return &d->children;
}

bool qwxDialog::init(const QUrl& url, EResizable resizable, DialogOptions options,
                     std::unique_ptr<QwxDialogController> controller, wxWindow* parent)
{
    if (d->internalDialog) {
        qCritical("Initializing a qwx dialog twice is not allowed");
        return false;
    }
    if (!oa::OaApp::s_app) {
        qCritical("qwx dialog requires an application object");
        return false;
    }
    if (!controller) {
        qCritical("qwx dialog requires a controller");
        return false;
    }
    d->controller = std::move(controller);
    d->internalDialog =
        oa::OaApp::s_app->guiController()->createDialog(url, d->controller.get(), resizable, options, parent);
    return true;
}

void qwxDialog::reloadContent()
{
    resetEventTableLoaded();
    loadContent();
    onReloadContent();
}

void qwxDialog::Show()
{
    if (!d->internalDialog) {
        qCritical("Unable to show dialog: internal dialog not found");
        return;
    }
    loadContent();
    d->internalDialog->Show();
}

void qwxDialog::Hide(int returnCode)
{
    if (!d->internalDialog) {
        qCritical("Unable to hide dialog: internal dialog not found");
        return;
    }
    d->internalDialog->Hide(returnCode);
}

int qwxDialog::ShowModal()
{
    if (!d->internalDialog) {
        qCritical("Unable to show modal dialog: internal dialog not found");
        return wxID_CANCEL;
    }
    loadContent();
    return d->internalDialog->ShowModal();
}

void qwxDialog::EndModal(int returnCode)
{
    if (!d->internalDialog) {
        qCritical("Unable to end modal dialog: internal dialog not found");
        return;
    }
    d->internalDialog->EndModal(returnCode);
}

void qwxDialog::EndDialog(int returnCode)
{
    if (IsModal())
        d->internalDialog->EndModal(returnCode);
    else
        Hide();
}

bool qwxDialog::IsModal() const
{
    return d->internalDialog && d->internalDialog->IsModal();
}

int qwxDialog::GetReturnCode() const
{
    return d->internalDialog ? d->internalDialog->GetReturnCode() : -1;
}

bool qwxDialog::isReady() const
{
    return d->internalDialog && d->internalDialog->isReady();
}

bool qwxDialog::waitForExposed()
{
    return d->internalDialog && d->internalDialog->waitForExposed();
}

void qwxDialog::SetTitle(const wxString& title)
{
    if (d->internalDialog)
        d->internalDialog->SetTitle(qut::toQt(title));
}

QQmlEngine* qwxDialog::engine()
{
    return d->internalDialog ? d->internalDialog->engine() : nullptr;
}

void qwxDialog::setInitDialogFunctor(std::function<void(qwxInitDialogEvent&)> functor)
{
    d->initFunctor = std::move(functor);
}

void qwxDialog::SetMinSize(const wxSize&)
{
    qDebug("qwxDialog::SetMinSize() : stub");
}

wxSize qwxDialog::GetBestSize() const
{
    qDebug("qwxDialog::GetBestSize() : stub");
    return wxSize(0, 0);
}

long qwxDialog::GetExtraStyle() const
{
    qDebug("qwxDialog::GetExtraStyle() : stub");
    return 0;
}

void qwxDialog::SetExtraStyle(long)
{
    qDebug("qwxDialog::SetExtraStyle() : stub");
}

void qwxDialog::onCreateDialog(qwxInitDialogEvent&) {}

void qwxDialog::onInitDialog(qwxInitDialogEvent& event)
{
    if (d->initFunctor)
        d->initFunctor(event);
    else
        TransferDataToWindow();
}

void qwxDialog::onReloadContent() {}

void qwxDialog::loadContent()
{
    // One run per call: a dialog shown twice transfers its data twice. The dialog
    // as context drops the run when the dialog goes first.
    QTimer::singleShot(0, Qt::PreciseTimer, this, [this] { runDeferredLoad(); });
}

void qwxDialog::runDeferredLoad()
{
    if (!root()) {
        qCritical("Unable to set up dialog: no root object found");
        return;
    }
    if (doLoadContent(d->children)) {
        qwxInitDialogEvent created(this);
        onCreateDialog(created);
    }
    qwxInitDialogEvent init(this);
    onInitDialog(init);
}

namespace wut {

bool doLoadDialog(qwxDialog* dialog, wxWindow* parent, const QUrl& url, EResizable resizable, DialogOptions options,
                  std::unique_ptr<QwxDialogController> controller)
{
    if (!dialog)
        return false;
    if (!controller)
        controller = std::make_unique<QwxDialogController>(*dialog);
    return dialog->init(url, resizable, options, std::move(controller), parent);
}

} // namespace wut

void EndModal(qwxDialog* dialog, int returnCode)
{
    if (!dialog)
        return;
    // Hide keeps the code on the internal dialog and reports a missing one.
    if (dialog->IsModal())
        dialog->EndModal(returnCode);
    else
        dialog->Hide(returnCode);
}

} // namespace dbr
