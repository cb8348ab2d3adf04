#include "modalrunner.h"

#include "qwxdialog.h"

#include <QCoreApplication>
#include <QDebug>

#include <wx/defs.h>

#include <cppunit/Exception.h>

#include <oda/OdEdCancel.h>
#include <ut/environment.h>

#include <exception>
#include <memory>

namespace dbr {

namespace {

bool s_isGuiTesting = false;
ModalRunner* s_modalRunner = nullptr;

CppUnit::Exception* cloneOf(const CppUnit::Exception* exception)
{
    return exception ? exception->clone() : nullptr;
}

// Under a runner the dialog is shown without a loop, handed to the action and
// its code read back; a failed check hides it and cancels the caller.
int runUnderTest(qwxDialog* dialog, ModalRunner& runner)
{
    dialog->Show();
    dialog->waitForExposed();
    try {
        runner.run(dialog);
    } catch (const CppUnit::Exception& failure) {
        ModalRunner* active = ModalRunner::getActiveRunner();
        // An action that destroyed every runner leaves nobody to hand the failure to.
        if (!active)
            throw;
        active->setException(failure.clone());
        // The window's Hide, which dialog code may have made its own; not the dialog's Hide(code).
        static_cast<qwxWindow*>(dialog)->Hide();
        throw OdEdCancel();
    }
    // What the action posted (an end request, say) is delivered before the code is read.
    if (QCoreApplication::instance())
        QCoreApplication::processEvents();
    return dialog->GetReturnCode();
}

} // namespace

void dlgSetGuiTesting(bool on)
{
    s_isGuiTesting = on;
}

bool isGuiTesting()
{
    return s_isGuiTesting;
}

ModalRunner::ModalRunner(std::function<void(qwxDialog*)> action)
    : m_action(std::move(action))
    , m_uncaughtAtConstruction(std::uncaught_exceptions())
{
    s_modalRunner = this;
}

ModalRunner::ModalRunner(const ModalRunner& other)
    : m_exception(cloneOf(other.m_exception))
    , m_action(other.m_action)
    , m_uncaughtAtConstruction(std::uncaught_exceptions())
{}

ModalRunner& ModalRunner::operator=(const ModalRunner& other)
{
    if (this != &other) {
        setException(cloneOf(other.m_exception));
        m_action = other.m_action;
    }
    return *this;
}

ModalRunner::~ModalRunner() noexcept(false)
{
    s_modalRunner = nullptr;
    if (!m_exception)
        return;
    const CppUnit::Exception failure(*m_exception);
    delete m_exception;
    // Throwing while another exception unwinds the test would terminate it.
    if (std::uncaught_exceptions() > m_uncaughtAtConstruction)
        return;
    throw failure;
}

void ModalRunner::run(qwxDialog* dialog)
{
    m_action(dialog);
}

void ModalRunner::setException(CppUnit::Exception* exception)
{
    delete m_exception;
    m_exception = exception;
}

ModalRunner* ModalRunner::getActiveRunner()
{
    return s_modalRunner;
}

OdString getFullQtTestResourcesPath(const OdString& relativePath)
{
    const OdString drawings = ut::getEnvironment("DRAWINGS_PATH");
    if (drawings.isEmpty())
        qWarning("Wasn't able to find the local drawings folder: DRAWINGS_PATH env var wasn't set.");
    return ut::correctSlashes(drawings + OdString("/Qt/") + relativePath);
}

int ShowModal(qwxDialog* dialog)
{
    if (!dialog)
        return wxID_CANCEL;
    ModalRunner* runner = ModalRunner::getActiveRunner();
    if (!s_isGuiTesting || !runner)
        return dialog->ShowModal();
    return runUnderTest(dialog, *runner);
}

} // namespace dbr
