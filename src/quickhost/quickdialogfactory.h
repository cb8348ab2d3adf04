#pragma once

#include <dlgbridge/services/idialogfactory.h>

#include <memory>

class QQmlEngine;

namespace dbr::quickhost {

class QuickDialogFactoryPrivate;

// Message boxes as the kit's MessageBox in a Qt Quick window of their own, each
// with a modal loop that ends when a button is pressed. Closing the window, or
// Escape, answers with the Cancel code (16) when the box has a Cancel button
// and with the last button's code otherwise, as does a box that can't be made
// (with a warning). The flag of the pair says whether a button was pressed.
// extraText is shown under the message. An empty button list gets the buttons
// of Ok, so that every box can be answered. The parent is not used: this host
// has no wx windows to place a box over.
// While a faker is set, it answers every box, as a pressed button, and nothing is shown.
class QuickDialogFactory : public IDialogFactory
{
public:
    explicit QuickDialogFactory(QQmlEngine& engine);
    ~QuickDialogFactory() override;

    using IDialogFactory::showMessage;

    void setupMessageBoxFaker(MessageBoxFaker faker) override;
    void unsetMessageBoxFaker() override;
    void reserved4() override;
    std::pair<int, bool> showMessage(OdString title, OdString message, OdString extraText, EMessageStyle style,
                                     const std::vector<MessageButtonInfo>& buttons, wxWindow* parent) const override;
    void reserved6() override;
    std::optional<OdCmColor> chooseColor(wxWindow* parent, const OdCmColor& current,
                                         unsigned int options) const override;
    void reserved8() override;
    void reserved9() override;
    void reserved10() override;
    void reserved11() override;
    void reserved12() override;
    void reserved13() override;
    void reserved14() override;
    void reserved15() override;
    void reserved16() override;
    void reserved17() override;
    void reserved18() override;
    void reserved19() override;
    void reserved20() override;
    void reserved21() override;
    void reserved22() override;
    void reserved23() override;
    void reserved24() override;
    void reserved25() override;
    void reserved26() override;
    void reserved27() override;
    void reserved28() override;
    bool loadLineTypes(wxWindow* parent, OdDbDatabase* database, OdArray<OdString>& names, const wxString&,
                       const OdString&) override;
    void reserved30() override;
    void reserved31() override;
    void reserved32() override;
    void reserved33() override;
    void reserved34() override;
    void reserved35() override;
    void reserved36() override;
    void reserved37() override;
    void reserved38() override;
    void reserved39() override;
    void reserved40() override;
    void reserved41() override;
    void reserved42() override;
    void reserved43() override;
    void reserved44() override;
    void reserved45() override;
    void reserved46() override;
    void reserved47() override;
    void reserved48() override;
    void reserved49() override;
    void reserved50() override;
    void reserved51() override;
    void reserved52() override;
    void reserved53() override;
    void reserved54() override;

private:
    std::unique_ptr<QuickDialogFactoryPrivate> const d;
};

} // namespace dbr::quickhost
