#pragma once

#include <dlgbridge/dlgbridge_export.h>
#include <dlgbridge/services/idialogfactory.h>

namespace dbr {

// An IDialogFactory whose reserved places do nothing, so that a factory writes
// only the operations it offers. The interface itself stays as the application
// lays it out.
class DLGBRIDGE_EXPORT DialogFactoryAdapter : public IDialogFactory
{
public:
    ~DialogFactoryAdapter() override;

    void reserved4() override {}
    void reserved6() override {}
    void reserved8() override {}
    void reserved9() override {}
    void reserved10() override {}
    void reserved11() override {}
    void reserved12() override {}
    void reserved13() override {}
    void reserved14() override {}
    void reserved15() override {}
    void reserved16() override {}
    void reserved17() override {}
    void reserved18() override {}
    void reserved19() override {}
    void reserved20() override {}
    void reserved21() override {}
    void reserved22() override {}
    void reserved23() override {}
    void reserved24() override {}
    void reserved25() override {}
    void reserved26() override {}
    void reserved27() override {}
    void reserved28() override {}
    void reserved30() override {}
    void reserved31() override {}
    void reserved32() override {}
    void reserved33() override {}
    void reserved34() override {}
    void reserved35() override {}
    void reserved36() override {}
    void reserved37() override {}
    void reserved38() override {}
    void reserved39() override {}
    void reserved40() override {}
    void reserved41() override {}
    void reserved42() override {}
    void reserved43() override {}
    void reserved44() override {}
    void reserved45() override {}
    void reserved46() override {}
    void reserved47() override {}
    void reserved48() override {}
    void reserved49() override {}
    void reserved50() override {}
    void reserved51() override {}
    void reserved52() override {}
    void reserved53() override {}
    void reserved54() override {}
};

} // namespace dbr
