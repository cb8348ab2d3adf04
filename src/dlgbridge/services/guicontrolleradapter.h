#pragma once

#include <dlgbridge/dlgbridge_export.h>
#include <dlgbridge/services/iguicontroller.h>

namespace dbr {

// An IGuiController whose reserved places do nothing, so that a controller
// writes only the operations it offers. The interface itself stays as the
// application lays it out.
class DLGBRIDGE_EXPORT GuiControllerAdapter : public IGuiController
{
public:
    ~GuiControllerAdapter() override;

    void reserved3() override {}
    void reserved4() override {}
    void reserved5() override {}
    void reserved8() override {}
    void reserved9() override {}
    void reserved10() override {}
    void reserved11() override {}
    void reserved12() override {}
    void reserved25() override {}
    void reserved26() override {}
    void reserved27() override {}
    void reserved28() override {}
    void reserved29() override {}
    void reserved30() override {}
    void reserved31() override {}
    void reserved32() override {}
    void reserved33() override {}
};

} // namespace dbr
