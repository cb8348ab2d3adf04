#pragma once

#include <dlgbridge/services/dialogfactoryadapter.h>
#include <quickhost/quickhost_export.h>

#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

class QQmlEngine;

namespace dbr::quickhost {

class QuickDialogFactoryPrivate;

// Answers the colour dialog instead of showing it: given the current colour
// and the options, the colour chosen, or nothing for a cancel.
using ColorDialogFaker = std::function<std::optional<OdCmColor>(const OdCmColor&, unsigned int)>;
// Answers the line type loader instead of showing it: given the names of the
// line types it offers, those picked, or nothing for a cancel.
using LineTypeLoaderFaker = std::function<std::optional<QStringList>(const QStringList&)>;

// Message boxes as the kit's MessageBox in a Qt Quick window of their own, each
// with a modal loop that ends when a button is pressed. Closing the window, or
// Escape, answers with wxCANCEL when the box has a Cancel button
// and with the last button's code otherwise, as does a box that can't be made
// (with a warning). The flag of the pair says whether a button was pressed.
// extraText is shown under the message. An empty button list gets the buttons
// of Ok, so that every box can be answered. The parent is not used: this host
// has no wx windows to place a box over.
// While a faker is set, it answers every box, as a pressed button, and nothing is shown.
//
// The colour dialog is the kit's ColorDialog: the colour index table as a
// grid, by-layer and by-block buttons and a true colour picker, as the
// options of QuickGuiController::ColorDialogOption allow. The line type
// loader is the kit's LoadLineTypesDialog over the line types of the
// definition file quickhost ships that the database lacks; those picked are
// added to it. Each has its own faker, which answers instead of the dialog.
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
    // A loader that is answered adds the line types picked, even none, and is true.
    bool loadLineTypes(wxWindow* parent, OdDbDatabase* database, OdArray<OdString>& names, const wxString&,
                       const OdString&) override;

    // An empty function takes the faker away.
    void setupColorDialogFaker(ColorDialogFaker faker);
    void setupLineTypeLoaderFaker(LineTypeLoaderFaker faker);

private:
    std::unique_ptr<QuickDialogFactoryPrivate> const d;
};

} // namespace dbr::quickhost
