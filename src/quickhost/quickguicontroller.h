#pragma once

#include <dlgbridge/services/iguicontroller.h>

#include <vector>

class QQmlEngine;

namespace dbr::quickhost {

// Builds every dialog as a QuickDialog in one shared engine.
class QuickGuiController : public IGuiController
{
public:
    explicit QuickGuiController(QQmlEngine& engine);
    ~QuickGuiController() override;

    std::unique_ptr<IWxQtDialog> createDialog(const QUrl& url, BaseDialogController* controller,
                                              EResizable resizable, DialogOptions options,
                                              wxWindow* parent) override;
    void reserved3() override;
    void reserved4() override;
    void reserved5() override;
    void attachContextDialog(IWxQtDialog* dialog) override;
    void detachContextDialog(IWxQtDialog* dialog) override;
    void reserved8() override;
    void reserved9() override;
    void reserved10() override;
    void reserved11() override;
    void reserved12() override;

    // The CAD value lists come with the value models; until then they are empty.
    bool acceptsColor(const OdCmColor& color, int flags) override;
    OdArray<int> colorIndexList(int flags) override;
    std::optional<int> addColor(const OdCmColor& color, int flags) override;
    const OdCmColor& colorAt(int index, int flags) override;
    ColorRowInfo colorRowInfo(const OdCmColor& color, const wxColour& byLayerColor, bool byLayerFlag,
                              int flags) override;
    unsigned int colorDialogOptions(int flags, bool varies) override;
    OdString localLineTypeName(const OdChar* globalName) override;
    bool lineTypeIds(OdDbDatabase* database, bool optionB, OdDbObjectId* referenceId, bool optionA,
                     LineTypeIdList& result) override;
    bool drawLineTypePreview(int width, int height, const wxColour& background, OdDbObjectId lineType,
                             OdDbObjectId reference, const OdString& localName, wxBitmap& bitmap) override;
    int lineWeightCount() override;
    OdDb::LineWeight lineWeightAt(int index) override;
    OdString lineWeightName(OdDb::LineWeight weight) override;

    void reserved25() override;
    void reserved26() override;
    void reserved27() override;
    void reserved28() override;
    void reserved29() override;
    void reserved30() override;
    void reserved31() override;
    void reserved32() override;
    void reserved33() override;

    // The command context dialogs attached now, in the order they came.
    const std::vector<IWxQtDialog*>& attachedDialogs() const;

private:
    QQmlEngine& m_engine;
    std::vector<IWxQtDialog*> m_attached;
    OdCmColor m_byLayer;
};

} // namespace dbr::quickhost
