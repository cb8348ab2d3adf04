#pragma once

#include <dlgbridge/core/qwxwindow.h>
#include <dlgbridge/services/iwxqtdialog.h>
#include <dlgbridge/hosting/qwxdialogcontroller.h>

#include <QObject>

#include <wx/gdicmn.h>

#include <functional>
#include <memory>

class QQmlEngine;
class QQuickItem;
class QUrl;

namespace dbr {

class qwxDialogPrivate;
class qwxInitDialogEvent;

// The wx-shaped dialog that dialog code derives from. The application builds
// the real dialog (IWxQtDialog) from a QML address; this class keeps it, the
// controller and the wrappers of the dialog's controls, and loads the wrappers
// one turn of the event loop after each show.
class DLGBRIDGE_EXPORT qwxDialog : public QObject, public qwxWindow
{
public:
    qwxDialog();
    // Binds to QML that exists already, without the application.
    explicit qwxDialog(QQuickItem* item);
    ~qwxDialog() override;

    virtual bool beforeOk();
    virtual bool beforeCancel();

    DBR_WRAPPER_TYPE(qwxDialog)
    QString wrappedObjectName() const override;
    QObject* root() const override;
    wxWindow* wx() override;
    QtControlModels* models() override;
    const QmlChildList* qmlChildren(UseParentListIfNone mode) const override;
    QmlChildList* qmlChildren(UseParentListIfNone mode) override;

    bool init(const QUrl& url, EResizable resizable, DialogOptions options,
              std::unique_ptr<QwxDialogController> controller, wxWindow* parent);
    // Loads the wrappers anew from the current QML, as after a reset by the host.
    void reloadContent();

    using qwxWindow::Show;
    void Show() override;
    using qwxWindow::Hide;
    void Hide(int returnCode);
    int ShowModal();
    void EndModal(int returnCode);
    // Ends a modal run, or else hides the QML root.
    void EndDialog(int returnCode);
    bool IsModal() const;
    int GetReturnCode() const;
    bool isReady() const;
    bool waitForExposed();
    void SetTitle(const wxString& title);
    QQmlEngine* engine();

    // A functor given here replaces the transfer of data to the controls on show.
    void setInitDialogFunctor(std::function<void(qwxInitDialogEvent&)> functor);

    void SetMinSize(const wxSize& size);
    wxSize GetBestSize() const;
    long GetExtraStyle() const;
    void SetExtraStyle(long style);

private:
    virtual void onCreateDialog(qwxInitDialogEvent& event);
    virtual void onInitDialog(qwxInitDialogEvent& event);
    virtual void onReloadContent();

    void loadContent();
    void runDeferredLoad();

    std::unique_ptr<qwxDialogPrivate> const d;
};

namespace wut {

// The normal way to bring up a dialog: a null controller gets a plain
// QwxDialogController.
DLGBRIDGE_EXPORT bool doLoadDialog(qwxDialog* dialog, wxWindow* parent, const QUrl& url, EResizable resizable,
                                   DialogOptions options, std::unique_ptr<QwxDialogController> controller);

} // namespace wut

// The modal run that dialog code should use, so that GUI tests can drive it
// (see ModalRunner, beside which it is defined).
DLGBRIDGE_EXPORT int ShowModal(qwxDialog* dialog);
// Ends a modal run; a dialog shown without a loop is hidden with the code kept.
DLGBRIDGE_EXPORT void EndModal(qwxDialog* dialog, int returnCode);

} // namespace dbr
