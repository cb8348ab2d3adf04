#pragma once

#include <dlgbridge/dlgbridge_export.h>

#include <oda/OdString.h>

#include <functional>

namespace CppUnit {
class Exception;
}

namespace dbr {

class qwxDialog;

// GUI testing changes what the free ShowModal does while a runner is active.
DLGBRIDGE_EXPORT void dlgSetGuiTesting(bool on);
DLGBRIDGE_EXPORT bool isGuiTesting();

// Drives modal dialogs in GUI tests. While a runner exists and GUI testing is
// on, ShowModal shows each dialog without a loop and hands it to the action,
// which clicks, checks and ends it. A failed check in the action cancels the
// application code around ShowModal and is thrown again by the destructor, in
// the test that owns the runner:
//
//     dlgSetGuiTesting(true);
//     {
//         ModalRunner runner([](qwxDialog* dialog) { ...; EndModal(dialog, wxID_OK); });
//         applicationCodeThatShowsTheDialog();
//     } // a failure of the action surfaces here
//
// The latest runner constructed is the active one; destroying any runner
// leaves none active.
class DLGBRIDGE_EXPORT ModalRunner
{
public:
    explicit ModalRunner(std::function<void(qwxDialog*)> action);
    // Copies get a failure of their own and are never the active runner.
    ModalRunner(const ModalRunner& other);
    ModalRunner& operator=(const ModalRunner& other);
    // Throws the failure the action left, unless another exception is already on its way.
    ~ModalRunner() noexcept(false);

    // An empty action throws std::bad_function_call.
    void run(qwxDialog* dialog);
    // Takes ownership; a failure stored earlier is dropped.
    void setException(CppUnit::Exception* exception);

    static ModalRunner* getActiveRunner();

private:
    CppUnit::Exception* m_exception = nullptr;
    std::function<void(qwxDialog*)> m_action;
    int m_uncaughtAtConstruction;
};

// The test resources under the folder named by DRAWINGS_PATH: "DRAWINGS_PATH/Qt/relativePath".
DLGBRIDGE_EXPORT OdString getFullQtTestResourcesPath(const OdString& relativePath);

} // namespace dbr
