#include "quickdialog.h"

#include "qmlwindow_p.h"

#include <dlgbridge/hosting/basedialogcontroller.h>

#include <QEventLoop>
#include <QQuickItem>
#include <QQuickWindow>

#include <wx/defs.h>

namespace dbr::quickhost {

class QuickDialogPrivate
{
public:
    QuickDialogPrivate(QQmlEngine& engine, const QUrl& url, BaseDialogController* dialogController)
        : controller(dialogController)
        , content(engine, url, dialogController)
    {}

    BaseDialogController* controller;
    QmlWindow content;
    QEventLoop* modalLoop = nullptr;
    int returnCode = 0;
};

QuickDialog::QuickDialog(QQmlEngine& engine, const QUrl& url, BaseDialogController* controller)
    : d(std::make_unique<QuickDialogPrivate>(engine, url, controller))
{
    connectRoot();
    d->content.window().installEventFilter(this);
}

QuickDialog::~QuickDialog() = default;

void QuickDialog::Show()
{
    // The window and its root show together, as they hide together.
    if (QQuickItem* root = d->content.root())
        root->setVisible(true);
    d->content.window().show();
}

int QuickDialog::ShowModal()
{
    QQuickWindow& window = d->content.window();
    window.setModality(Qt::ApplicationModal);
    window.show();
    QEventLoop loop;
    d->modalLoop = &loop;
    loop.exec();
    d->modalLoop = nullptr;
    window.hide();
    window.setModality(Qt::NonModal);
    return d->returnCode;
}

void QuickDialog::Hide(int returnCode)
{
    EndModal(returnCode);
}

int QuickDialog::GetReturnCode()
{
    return d->returnCode;
}

bool QuickDialog::IsModal()
{
    return d->modalLoop != nullptr;
}

void QuickDialog::EndModal(int returnCode)
{
    d->returnCode = returnCode;
    if (d->modalLoop)
        d->modalLoop->exit();
    d->content.window().hide();
}

void QuickDialog::hostOperationA() {}

void QuickDialog::hostOperationB() {}

void QuickDialog::SetTitle(const QString& title)
{
    d->content.window().setTitle(title);
}

bool QuickDialog::isReady()
{
    return d->content.root() && d->content.window().isExposed();
}

bool QuickDialog::waitForExposed()
{
    return d->content.waitForExposed();
}

void QuickDialog::aboutToBeDestroyed()
{
    // A dialog must not leave a loop running for an object that is gone.
    EndModal(d->returnCode);
}

QUrl QuickDialog::sourceUrl()
{
    return d->content.url();
}

QObject* QuickDialog::root()
{
    return d->content.root();
}

wxWindow* QuickDialog::wx()
{
    return nullptr;
}

QQmlEngine* QuickDialog::engine()
{
    return &d->content.engine();
}

QQuickWindow& QuickDialog::window() const
{
    return d->content.window();
}

void QuickDialog::reload()
{
    d->content.reload();
    connectRoot();
    if (d->controller)
        d->controller->afterReset();
}

bool QuickDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != &d->content.window() || event->type() != QEvent::Close)
        return QObject::eventFilter(watched, event);
    // The window stays: it is hidden, not destroyed, when the dialog ends, and a
    // refused close leaves it as it was.
    event->setAccepted(requestEnd(wxID_CANCEL));
    return true;
}

void QuickDialog::onAccepted()
{
    requestEnd(wxID_OK);
}

void QuickDialog::onRejected()
{
    requestEnd(wxID_CANCEL);
}

void QuickDialog::connectRoot()
{
    QQuickItem* root = d->content.root();
    if (!root)
        return;
    // Dialog code that hides the root (qwxWindow::Hide) means the dialog to leave
    // the screen; a root leaving its window as it is destroyed means nothing.
    connect(root, &QQuickItem::visibleChanged, this, [this, root] {
        if (root->parentItem() && !root->isVisible())
            d->content.window().hide();
    });
    // Only a DialogAV root ends itself; other roots are ended by dialog code.
    const QMetaObject* meta = root->metaObject();
    if (meta->indexOfSignal("accepted()") >= 0)
        connect(root, SIGNAL(accepted()), this, SLOT(onAccepted()));
    if (meta->indexOfSignal("rejected()") >= 0)
        connect(root, SIGNAL(rejected()), this, SLOT(onRejected()));
}

bool QuickDialog::requestEnd(int returnCode)
{
    if (d->controller) {
        const bool agreed =
            IsModal() ? d->controller->beforeEndModal(returnCode) : d->controller->beforeEndNonModal(returnCode);
        if (!agreed)
            return false;
    }
    EndModal(returnCode);
    return true;
}

} // namespace dbr::quickhost
