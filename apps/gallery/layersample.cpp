#include "layersample.h"

#include "dialogsample.h"
#include "layerpropertiesdialog.h"

#include <quickhost/quickhost.h>

#include <QTextStream>

#include <ca/CaApp.h>
#include <oda/OdDbDatabase.h>
#include <qut/qtconversions.h>

namespace {

std::vector<ScriptPlayer::Step> layerSteps(ScriptPlayer& script, LayerPropertiesDialog& dialog)
{
    return {
        [&dialog] { dialog.waitForExposed(); },
        // The last colour row opens the colour dialog, whose own loop runs the next steps.
        [&script] { script.click("color"); },
        [&script] { script.clickPopupRow("colorRow9"); },
        [&script] { script.typeInDialog("ColorDialog", "trueColor", QStringLiteral("255,128,0")); },
        [&script] { script.clickInDialog("ColorDialog", "colorOk"); },
        // The colour just added is a row of the other colour combo too.
        [&script] { script.click("viewportColor"); },
        [&script] { script.clickPopupRow("colorRow9"); },
        [&script] { script.click("lineWeight"); },
        [&script] { script.clickPopupRow("lineWeightRow11"); },
        // "Load..." opens the line type loader.
        [&script] { script.click("lineType"); },
        [&script] { script.clickPopupRow("lineTypeRow2"); },
        [&script] { script.clickInDialog("LoadLineTypesDialog", "lineType_CENTER"); },
        [&script] { script.clickInDialog("LoadLineTypesDialog", "loadOk"); },
        // The line types with their previews, for the screenshot.
        [&script] { script.click("lineType"); },
        [&script] { script.saveWindowScreenshot(); },
        [&script] { script.pressKey(Qt::Key_Escape); },
        [&script] { script.click("wxID_OK"); },
    };
}

// A drawing shown in a layout, with a layer to edit.
OdDbObjectId prepareDrawing(OdDbDatabase& database)
{
    OdCmColor green;
    green.setColorIndex(3);
    const OdDbObjectId walls = database.addLayer("Walls", green);
    database.addLinetype("HIDDEN", "Hidden __ __ __ __ __ __ __ __ __ __ __ __ __ __", {0.25, -0.125});
    database.setTILEMODE(false);
    database.addViewport();
    const OdDbLayerTableRecordPtr layer = OdDbLayerTableRecord::cast(walls.openObject());
    layer->setLinetypeObjectId(database.getLinetypeId("HIDDEN"));
    layer->setLineWeight(OdDb::kLnWt025);
    return walls;
}

} // namespace

int LayerSample::run(dbr::quickhost::QuickHost&, const SampleOptions& options, QTextStream& out)
{
    OdDbDatabase* database = ca::curDb();
    const OdDbObjectId walls = prepareDrawing(*database);
    LayerPropertiesDialog dialog(walls);
    dialog.load();
    const auto steps = [&dialog](ScriptPlayer& script) { return layerSteps(script, dialog); };
    return runDialogSample(dialog, dialog.seen, steps, options, out, [walls, database](QTextStream& results) {
        const OdDbLayerTableRecordPtr layer = OdDbLayerTableRecord::cast(walls.openObject());
        bool overridden = false;
        const OdCmColor viewportColor = layer->color(activeViewport(*database), overridden);
        results << "Layer " << qut::toQt(layer->getName()) << ": color " << describeColor(layer->color())
                << ", viewport color " << describeColor(viewportColor) << ", line type "
                << lineTypeName(layer->linetypeObjectId()) << ", line weight " << layer->lineWeight() / 100.0
                << " mm\n";
    });
}
