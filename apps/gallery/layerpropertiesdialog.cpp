#include "layerpropertiesdialog.h"

#include "lineweightcombo.h"

#include <dlgbridge/cadmodels/qwxcolorcombobox.h>
#include <dlgbridge/cadmodels/lineweightmodel.h>
#include <dlgbridge/cadmodels/qwxlinetypecombobox.h>
#include <dlgbridge/controls/qwxstatictext.h>
#include <dlgbridge/core/qmlchildlist.h>

#include <QUrl>

#include <oda/OdDbDatabase.h>
#include <qut/qtconversions.h>

using namespace dbr;

namespace {

OdDbLayerTableRecordPtr layerOf(const OdDbObjectId& id)
{
    return OdDbLayerTableRecord::cast(id.openObject());
}

} // namespace

OdDbObjectId activeViewport(const OdDbDatabase& database)
{
    const OdDbBlockTableRecordPtr paper = OdDbBlockTableRecord::cast(database.getPaperSpaceId().openObject());
    const OdDbLayoutPtr layout = paper ? OdDbLayout::cast(paper->getLayoutId().openObject()) : nullptr;
    return layout ? layout->activeViewportId() : OdDbObjectId::kNull;
}

QString describeColor(const OdCmColor& color)
{
    if (color.isByLayer())
        return QStringLiteral("ByLayer");
    if (color.isByBlock())
        return QStringLiteral("ByBlock");
    if (color.isByACI())
        return QStringLiteral("Color %1").arg(color.colorIndex());
    return QStringLiteral("%1,%2,%3").arg(color.red()).arg(color.green()).arg(color.blue());
}

QString lineTypeName(const OdDbObjectId& lineType)
{
    const OdDbSymbolTableRecordPtr record = OdDbSymbolTableRecord::cast(lineType.openObject());
    return record ? qut::toQt(record->getName()) : QString();
}

LayerPropertiesDialog::LayerPropertiesDialog(const OdDbObjectId& layer)
    : m_layer(layer)
{}

LayerPropertiesDialog::~LayerPropertiesDialog() = default;

bool LayerPropertiesDialog::load(wxWindow* parent)
{
    return wut::doLoadDialog(this, parent, QUrl(QStringLiteral("qrc:/gallery/LayerProperties.qml")), NotResizable, {},
                             nullptr);
}

template<typename Control>
Control* LayerPropertiesDialog::control(const char* name) const
{
    return dynamic_cast<Control*>(FindWindow(name));
}

CustomTypes LayerPropertiesDialog::registerCustomTypes()
{
    return {{QStringLiteral("LineWeightComboBox"),
             [](const OdString& name, qwxWindow& parent) { return std::make_unique<LineWeightCombo>(name, parent); }}};
}

void LayerPropertiesDialog::onCreateDialog(qwxInitDialogEvent&)
{
    const OdDbLayerTableRecordPtr layer = layerOf(m_layer);
    if (!layer)
        return;
    control<qwxStaticText>("layerName")->SetLabel(qut::wxFromOd(layer->getName()));
    control<qwxColorComboBox>("color")->setColor(layer->color());
    bool overridden = false;
    control<qwxColorComboBox>("viewportColor")->setColor(layer->color(activeViewport(*layer->database()), overridden));
    control<qwxLineTypeComboBox>("lineType")->setSelection(layer->linetypeObjectId());
    control<LineWeightCombo>("lineWeight")->setLineWeight(layer->lineWeight());
}

void LayerPropertiesDialog::doEventTableInit()
{
    QmlChildList* children = qmlChildren(UseParentList);
    // The combos' items say "activated" once a pick is settled, the colour dialog or loader included.
    children->connectToChoiceEvent("color", [this](qwxCommandEvent&) {
        seen.append(QStringLiteral("color %1").arg(describeColor(control<qwxColorComboBox>("color")->color())));
    });
    children->connectToChoiceEvent("viewportColor", [this](qwxCommandEvent&) {
        seen.append(QStringLiteral("viewport color %1")
                        .arg(describeColor(control<qwxColorComboBox>("viewportColor")->color())));
    });
    children->connectToChoiceEvent("lineType", [this](qwxCommandEvent&) {
        seen.append(
            QStringLiteral("line type %1").arg(lineTypeName(control<qwxLineTypeComboBox>("lineType")->getLinetype())));
    });
    children->connectToChoiceEvent("lineWeight", [this](qwxCommandEvent&) {
        const LineWeightCombo* weight = control<LineWeightCombo>("lineWeight");
        const dbr::LineWeightObject* row = weight->model().getLineWeight(weight->model().getCurrentIndex());
        seen.append(QStringLiteral("line weight %1").arg(row ? row->getLineWeightName() : QString()));
    });
}

bool LayerPropertiesDialog::beforeOk()
{
    const OdDbLayerTableRecordPtr layer = layerOf(m_layer);
    if (!layer)
        return true;
    layer->setColor(control<qwxColorComboBox>("color")->color());
    layer->setColor(control<qwxColorComboBox>("viewportColor")->color(), activeViewport(*layer->database()));
    const OdDbObjectId lineType = control<qwxLineTypeComboBox>("lineType")->getLinetype();
    if (!lineType.isNull())
        layer->setLinetypeObjectId(lineType);
    layer->setLineWeight(control<LineWeightCombo>("lineWeight")->lineWeight());
    return true;
}
