#pragma once

#include <dlgbridge/services/dialogfactoryadapter.h>
#include <quickhost/quickhost_export.h>

#include <memory>

class QQmlEngine;

namespace dbr::quickhost {

class QuickDialogFactoryPrivate;

// Message boxes as the kit's MessageBox in a Qt Quick window of their own, each
// with a modal loop that ends when a button is pressed. Closing the window, or
// Escape, answers with wxCANCEL when the box has a Cancel button
// and with the last button's code otherwise, as does a box that can't be made
// (with a warning). The flag of the pair says whether a button was pressed.
// extraText is shown under the message. An empty button list gets the buttons
// of Ok, so that every box can be answered. The parent is not used: this host
// has no wx windows to place a box over.
// While a faker is set, it answers every box, as a pressed button, and nothing is shown.
class DLGBRIDGE_QUICKHOST_EXPORT QuickDialogFactory : public DialogFactoryAdapter
{
public:
    explicit QuickDialogFactory(QQmlEngine& engine);
    ~QuickDialogFactory() override;

    using IDialogFactory::showMessage;

    void setupMessageBoxFaker(MessageBoxFaker faker) override;
    void unsetMessageBoxFaker() override;
    std::pair<int, bool> showMessage(OdString title, OdString message, OdString extraText, EMessageStyle style,
                                     const std::vector<MessageButtonInfo>& buttons, wxWindow* parent) const override;
    std::optional<OdCmColor> chooseColor(wxWindow* parent, const OdCmColor& current,
                                         unsigned int options) const override;
    bool loadLineTypes(wxWindow* parent, OdDbDatabase* database, OdArray<OdString>& names, const wxString&,
                       const OdString&) override;

private:
    std::unique_ptr<QuickDialogFactoryPrivate> const d;
};

} // namespace dbr::quickhost
