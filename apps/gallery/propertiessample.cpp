#include "propertiessample.h"

#include "scriptplayer.h"

#include <dlgbridge/gpm/gpmtreedatafactory.h>
#include <quickhost/propertypanelmodel.h>
#include <quickhost/quickhost.h>

#include <QEventLoop>
#include <QQmlContext>
#include <QQuickItem>
#include <QQuickView>
#include <QTextStream>

#include <ca/CaApp.h>
#include <oa/Property.h>
#include <oda/OdDbDatabase.h>
#include <oda/OdRxObjectImpl.h>
#include <qut/qtconversions.h>

#include <memory>
#include <vector>

namespace {

using V = tdx::PropertyValue;

template<typename X, typename... Arguments>
OdSmartPtr<const oa::Attribute> attribute(Arguments&&... arguments)
{
    return OdRxObjectImpl<X>::createObject(std::forward<Arguments>(arguments)...);
}

// One wall of a drawing as the property system shows it: one property per
// line, values in the units the drawing stores (metres, square and cubic
// metres, kilograms, degrees), its colour and line type as the drawing keeps
// them (an index colour, a line type of the drawing).
class Wall
{
public:
    explicit Wall(OdDbDatabase& drawing)
    {
        using namespace oa::PropType;
        const auto metres =
            attribute<oa::UnitsAttribute>(oa::UnitsAttribute::Units{{"m", 1.0}, {"mm", 0.001}, {"km", 1000.0}});
        const auto squareMetres =
            attribute<oa::UnitsAttribute>(oa::UnitsAttribute::Units{{"m²", 1.0}, {"cm²", 0.0001}});
        const auto cubicMetres = attribute<oa::UnitsAttribute>(oa::UnitsAttribute::Units{{"m³", 1.0}, {"l", 0.001}});
        const auto kilograms = attribute<oa::UnitsAttribute>(oa::UnitsAttribute::Units{{"kg", 1.0}, {"t", 1000.0}});
        const auto readOnly = attribute<oa::ReadOnlyAttribute>();
        V material(OdString("Brick"));
        material.setVaries();
        OdCmColor red;
        red.setColorIndex(1);
        V color;
        tdx::Props::setValue(color, red);
        drawing.addLinetype("HIDDEN", "Hidden __ __ __ __ __ __ __ __ __ __ __ __ __ __", {0.25, -0.125});

        general = {add("Name", String::getType(), V(OdString("Wall 1")), {}, "What the wall is called"),
                   add("Handle", String::getType(), V(OdString("1F3A")), {readOnly}, "The drawing's own key"),
                   add("Side", String::getType(), V(OdString("Exterior")),
                       {attribute<oa::EnumerationAttribute>(
                           oa::EnumerationAttribute::Values{{"Exterior", V(OdString("Exterior"))},
                                                            {"Interior", V(OdString("Interior"))},
                                                            {"Partition", V(OdString("Partition"))}})}),
                   add("Visible", Boolean::getType(), V(true), {attribute<oa::BooleanValueAttribute>("Yes", "No")}),
                   add("Material", String::getType(), material, {}, "Differs among the selected segments"),
                   add("Color", Color::getType(), color),
                   add("Linetype", Linetype::getType(), V(drawing.getLinetypeId("HIDDEN")))};
        geometry = {add("Length", Length::getType(), V(4.2), {metres}),
                    add("Thickness", Distance::getType(), V(0.24), {metres}),
                    add("Height", Real::getType(), V(2.7)),
                    add("Rotation", Angle::getType(), V(90.0)),
                    add("Area", Area::getType(), V(10.08), {squareMetres}),
                    add("Volume", Volume::getType(), V(2.4192), {cubicMetres, readOnly})};
        construction = {
            add("Layers", Integer::getType(), V::fromInteger(3), {}, "At most ten"),
            add("Fire rating", Integer::getType(), V::fromInteger(60),
                {attribute<oa::EnumerationAttribute>(oa::EnumerationAttribute::Values{
                    {"30 min", V::fromInteger(30)}, {"60 min", V::fromInteger(60)}, {"90 min", V::fromInteger(90)}})}),
            add("Mass", Mass::getType(), V(5800.0), {kilograms}),
            add("Finish", Enumeration::getType(), V(V::kString, 0, V::kNoValue),
                {attribute<oa::EnumerationAttribute>(oa::EnumerationAttribute::Values{
                     {"Plaster", V(OdString("Plaster"))}, {"Paint", V(OdString("Paint"))}}),
                 attribute<oa::ValueAttribute>(true)}),
            add("Start point", Point::getType(), V(OdString("0,0,0")))};
        // The drawing takes no wall of more than ten layers.
        find("Layers")->setCheck([](const V& value) { return value.toInteger() <= 10; });
    }

    oa::Property* find(const char* name) const
    {
        for (const auto& property : m_properties) {
            if (property->globalName() == OdString(name))
                return property.get();
        }
        return nullptr;
    }

    const std::vector<std::unique_ptr<oa::Property>>& properties() const { return m_properties; }

    std::vector<const oa::Property*> general;
    std::vector<const oa::Property*> geometry;
    std::vector<const oa::Property*> construction;

private:
    const oa::Property* add(const char* name, oa::PropertyType* type, V value, oa::AttributeCollection attributes = {},
                            const char* description = "")
    {
        m_properties.push_back(
            std::make_unique<oa::Property>(name, name, type, std::move(value), std::move(attributes), description));
        return m_properties.back().get();
    }

    std::vector<std::unique_ptr<oa::Property>> m_properties;
};

QString shown(const oa::Property& property)
{
    V value;
    OdString text;
    if (!property.getValue(value, std::nullopt))
        return QStringLiteral("(unreadable)");
    if (value.flags() & V::kVaries)
        return QStringLiteral("(varies)");
    if (!property.type()->valueToString(text, value, nullptr, &property.attributes(std::nullopt)))
        return QStringLiteral("(no value)");
    return qut::toQt(text);
}

std::vector<ScriptPlayer::Step> steps(ScriptPlayer& player, QEventLoop& loop)
{
    const auto replace = [&player](const char* field, const char* text) {
        player.invoke(field, "selectAll");
        player.typeInto(field, QString::fromUtf8(text));
        player.pressKey(field, Qt::Key_Return);
    };
    return {
        [replace] { replace("Name", "Wall 1 north"); },
        // In metres, as shown; then shown in millimetres.
        [replace] { replace("Length/value", "4.5"); },
        [&player] { player.pressKey("Length/units", Qt::Key_Down); },
        // Thickness shows in millimetres, its best unit.
        [replace] { replace("Thickness/value", "300"); },
        [&player] { player.pressKey("Side", Qt::Key_Down); },
        // Refused by the drawing: the field goes back to 3.
        [replace] { replace("Layers", "12"); },
        [&player] { player.pressKey("Fire rating", Qt::Key_Down); },
        // The colour combo's last row opens the colour dialog, whose own loop runs the next steps.
        [&player] { player.click("Color"); },
        [&player] { player.clickPopupRow("colorRow9"); },
        [&player] { player.typeInDialog("ColorDialog", "trueColor", QStringLiteral("255,128,0")); },
        [&player] { player.clickInDialog("ColorDialog", "colorOk"); },
        // "Load..." opens the line type loader.
        [&player] { player.click("Linetype"); },
        [&player] { player.clickPopupRow("lineTypeRow2"); },
        [&player] { player.clickInDialog("LoadLineTypesDialog", "lineType_CENTER"); },
        [&player] { player.clickInDialog("LoadLineTypesDialog", "loadOk"); },
        [&player] { player.saveScreenshot(); },
        [&loop] { loop.quit(); },
    };
}

} // namespace

int PropertiesSample::run(dbr::quickhost::QuickHost& host, const SampleOptions& options, QTextStream& out)
{
    // The application attaches the factories when its property system starts.
    dbr::fillGPMTreeDataFactory();
    int result = 0;
    {
        Wall wall(*ca::curDb());
        const oa::PropertyCategory general("General", 10);
        const oa::PropertyCategory geometry("Geometry", 5);
        const oa::PropertyCategory construction("Construction", 20);
        dbr::quickhost::PropertyPanelModel panel;
        panel.addCategory(general, wall.general);
        panel.addCategory(construction, wall.construction);
        panel.addCategory(geometry, wall.geometry);

        QQuickView window(&host.engine(), nullptr);
        window.rootContext()->setContextProperty(QStringLiteral("properties"), &panel);
        window.setSource(QUrl(QStringLiteral("qrc:/gallery/PropertiesWindow.qml")));
        window.setTitle(QStringLiteral("Properties"));
        window.setPosition(40, 40);

        QEventLoop loop;
        ScriptPlayer player([&window] { return window.rootObject(); }, options.screenshotPath);
        player.setSteps(steps(player, loop));
        QObject::connect(&window, &QWindow::visibleChanged, &loop, [&loop](bool visible) {
            if (!visible)
                loop.quit();
        });
        window.show();
        if (options.scripted)
            player.start();
        loop.exec();

        out << "The wall's properties hold:\n";
        for (const auto& property : wall.properties())
            out << "  " << qut::toQt(property->localName()) << ": " << shown(*property) << '\n';
        if (options.scripted && player.screenshotSaved())
            out << "Screenshot: " << options.screenshotPath << '\n';

        const auto real = [&wall](const char* name) { return wall.find(name)->storedValue().toReal(); };
        const bool edited = shown(*wall.find("Name")) == QLatin1String("Wall 1 north") && real("Length") == 4.5 &&
                            qFuzzyCompare(real("Thickness"), 0.3) &&
                            shown(*wall.find("Side")) == QLatin1String("Interior") &&
                            wall.find("Layers")->storedValue().toInteger() == 3 &&
                            wall.find("Fire rating")->storedValue().toInteger() == 90 &&
                            shown(*wall.find("Color")) == QLatin1String("255,128,0") &&
                            shown(*wall.find("Linetype")) == QLatin1String("CENTER");
        result = options.scripted && (!edited || !player.screenshotSaved()) ? 1 : 0;
    }
    dbr::clearGPMTreeDataFactory();
    return result;
}
