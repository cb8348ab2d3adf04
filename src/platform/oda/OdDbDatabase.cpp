#include "OdDbDatabase.h"

#include <cwctype>

namespace {

bool sameName(const OdString& a, const OdString& b)
{
    if (a.getLength() != b.getLength())
        return false;
    for (int i = 0; i < a.getLength(); ++i) {
        if (std::towupper(std::wint_t(a.getAt(i))) != std::towupper(std::wint_t(b.getAt(i))))
            return false;
    }
    return true;
}

template<class Record>
OdSmartPtr<Record> makeRecord(const OdString& name)
{
    OdSmartPtr<Record> record = new Record;
    record->setName(name);
    return record;
}

} // namespace

OdDbObject::~OdDbObject() = default;

void OdDbObject::addRef()
{
    ++m_references;
}

void OdDbObject::release()
{
    if (--m_references == 0)
        delete this;
}

long OdDbObject::numRefs() const
{
    return m_references;
}

bool OdDbObjectId::isValid() const
{
    return m_database && m_database->objectAt(m_handle);
}

bool OdDbObjectId::isErased() const
{
    const OdDbObjectPtr object = m_database ? m_database->objectAt(m_handle) : nullptr;
    return object && object->isErased();
}

OdDbObjectPtr OdDbObjectId::openObject(OdDb::OpenMode) const
{
    OdDbObjectPtr object = m_database ? m_database->objectAt(m_handle) : nullptr;
    return object && !object->isErased() ? object : nullptr;
}

double OdDbLinetypeTableRecord::dashLengthAt(int index) const
{
    return index >= 0 && index < numDashes() ? m_dashes[size_t(index)] : 0.0;
}

void OdDbLinetypeTableRecord::setDashes(const OdArray<double>& dashes)
{
    m_dashes.assign(dashes.begin(), dashes.end());
}

double OdDbLinetypeTableRecord::patternLength() const
{
    double length = 0;
    for (double dash : m_dashes)
        length += dash < 0 ? -dash : dash;
    return length;
}

OdCmColor OdDbLayerTableRecord::color(const OdDbObjectId& viewportId, bool& isOverride) const
{
    const auto found = m_viewportColors.find(viewportId);
    isOverride = found != m_viewportColors.end();
    return isOverride ? found->second : m_color;
}

void OdDbLayerTableRecord::setColor(const OdCmColor& color, const OdDbObjectId& viewportId)
{
    m_viewportColors[viewportId] = color;
}

OdDbDatabasePtr OdDbDatabase::createObject()
{
    return new OdDbDatabase;
}

OdDbDatabase::OdDbDatabase()
{
    m_byBlock = addLinetype("ByBlock", OdString(), {});
    m_byLayer = addLinetype("ByLayer", OdString(), {});
    m_continuous = addLinetype("Continuous", "Solid line", {});
    m_currentLinetype = m_byLayer;
    m_layerZero = addLayer("0", [] {
        OdCmColor white;
        white.setColorIndex(7);
        return white;
    }());
    m_modelSpace = addLayout("Model", "*Model_Space");
    m_paperSpace = addLayout("Layout1", "*Paper_Space");
}

OdDbDatabase::~OdDbDatabase()
{
    // Objects still referenced elsewhere outlive the map; they keep naming this database, as in the SDK.
    m_objects.clear();
}

void OdDbDatabase::addRef()
{
    ++m_references;
}

void OdDbDatabase::release()
{
    if (--m_references == 0)
        delete this;
}

long OdDbDatabase::numRefs() const
{
    return m_references;
}

OdDbObjectPtr OdDbDatabase::objectAt(std::uint64_t handle) const
{
    const auto found = m_objects.find(handle);
    return found == m_objects.end() ? nullptr : found->second;
}

OdDbObjectId OdDbDatabase::add(OdDbObjectPtr object)
{
    const OdDbObjectId id(this, m_nextHandle++);
    object->m_id = id;
    m_objects[id.handle()] = std::move(object);
    return id;
}

OdDbObjectId OdDbDatabase::findByName(const std::vector<OdDbObjectId>& table, const OdString& name) const
{
    for (const OdDbObjectId& id : table) {
        const OdDbSymbolTableRecordPtr record = OdDbSymbolTableRecord::cast(id.openObject());
        if (record && sameName(record->getName(), name))
            return id;
    }
    return OdDbObjectId::kNull;
}

OdArray<OdDbObjectId> OdDbDatabase::alive(const std::vector<OdDbObjectId>& table) const
{
    OdArray<OdDbObjectId> ids;
    for (const OdDbObjectId& id : table) {
        if (!id.isErased())
            ids.append(id);
    }
    return ids;
}

OdDbObjectId OdDbDatabase::addLinetype(const OdString& name, const OdString& comments, const OdArray<double>& dashes)
{
    if (!findByName(m_linetypes, name).isNull())
        return OdDbObjectId::kNull;
    OdDbLinetypeTableRecordPtr record = makeRecord<OdDbLinetypeTableRecord>(name);
    record->setComments(comments);
    record->setDashes(dashes);
    const OdDbObjectId id = add(record);
    m_linetypes.push_back(id);
    return id;
}

OdDbObjectId OdDbDatabase::getLinetypeId(const OdString& name) const
{
    return findByName(m_linetypes, name);
}

OdArray<OdDbObjectId> OdDbDatabase::linetypeIds() const
{
    return alive(m_linetypes);
}

OdDbObjectId OdDbDatabase::addLayer(const OdString& name, const OdCmColor& color)
{
    if (!findByName(m_layers, name).isNull())
        return OdDbObjectId::kNull;
    OdDbLayerTableRecordPtr record = makeRecord<OdDbLayerTableRecord>(name);
    record->setColor(color);
    record->setLinetypeObjectId(m_continuous);
    const OdDbObjectId id = add(record);
    m_layers.push_back(id);
    return id;
}

OdArray<OdDbObjectId> OdDbDatabase::layerIds() const
{
    return alive(m_layers);
}

OdDbObjectId OdDbDatabase::addLayout(const OdString& name, const OdString& blockName)
{
    OdDbBlockTableRecordPtr block = makeRecord<OdDbBlockTableRecord>(blockName);
    OdSmartPtr<OdDbLayout> layout = new OdDbLayout;
    layout->m_name = name;
    const OdDbObjectId blockId = add(block);
    block->m_layout = add(layout);
    layout->m_block = blockId;
    return blockId;
}

OdDbObjectId OdDbDatabase::addViewport()
{
    const OdDbObjectId viewport = add(new OdDbViewport);
    const OdDbBlockTableRecordPtr paper = OdDbBlockTableRecord::cast(m_paperSpace.openObject());
    const OdDbLayoutPtr layout = OdDbLayout::cast(paper->getLayoutId().openObject());
    layout->setActiveViewportId(viewport);
    return viewport;
}
