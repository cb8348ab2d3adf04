#pragma once

#include <dlgbridge/hosting/qwxdialog.h>

#include <QStringList>

#include <oda/OdCmColor.h>
#include <oda/OdDbObjectId.h>

class OdDbDatabase;

// Dialog code as the application writes it: the properties of one layer of
// the current drawing, its colour and its colour in the active viewport (two
// colour combos on the dialog's one colour model), its line type and its line
// weight. The last row of a colour combo opens the colour dialog, "Load..."
// the line type loader; OK writes the values back to the layer.
class LayerPropertiesDialog : public dbr::qwxDialog
{
public:
    explicit LayerPropertiesDialog(const OdDbObjectId& layer);
    ~LayerPropertiesDialog() override;

    bool load(wxWindow* parent = nullptr);

    // What the dialog code saw, in order.
    QStringList seen;

    void doEventTableInit() override;
    bool beforeOk() override;
    dbr::CustomTypes registerCustomTypes() override;

private:
    void onCreateDialog(dbr::qwxInitDialogEvent& event) override;

    template<typename Control>
    Control* control(const char* name) const;

    OdDbObjectId m_layer;
};

// A line of text about a CAD colour: "ByLayer", "Color 3" or "255,128,0".
QString describeColor(const OdCmColor& color);
// The active viewport of the drawing's layout, whose own layer colours the dialog shows.
OdDbObjectId activeViewport(const OdDbDatabase& database);
// The name of a line type, empty for none.
QString lineTypeName(const OdDbObjectId& lineType);
