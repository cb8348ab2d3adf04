#pragma once

#include <oda/OdArray.h>
#include <oda/OdCmColor.h>
#include <oda/OdDb.h>
#include <oda/OdDbObjectId.h>
#include <oda/OdRxObject.h>
#include <oda/OdSmartPtr.h>
#include <oda/OdString.h>

#include <cstdint>
#include <map>
#include <vector>

// Stand-ins for the ODA SDK's drawing database and the few objects the
// library reads from it: line types, layers with their colours (per viewport
// too), and the layouts that say which viewport is active. The database owns
// its objects; both count their references. Names of symbol table records
// compare without regard to case, as in the SDK.

#define ODDB_DECLARE_CAST(Class)                                                                                       \
    static OdSmartPtr<Class> cast(const OdDbObjectPtr& object)                                                         \
    {                                                                                                                  \
        return dynamic_cast<Class*>(object.get());                                                                     \
    }

class OdDbObject : public OdRxObject
{
public:
    ~OdDbObject() override;
    ODDB_DECLARE_CAST(OdDbObject)

    void addRef() override;
    void release() override;
    long numRefs() const override;

    OdDbObjectId objectId() const { return m_id; }
    // The owning database; an object outliving its database still names it.
    OdDbDatabase* database() const { return m_id.database(); }
    bool isErased() const { return m_erased; }
    void erase(bool erasing = true) { m_erased = erasing; }

protected:
    OdDbObject() = default;

private:
    friend class OdDbDatabase;
    OdDbObjectId m_id;
    long m_references = 0;
    bool m_erased = false;
};

class OdDbSymbolTableRecord : public OdDbObject
{
public:
    ODDB_DECLARE_CAST(OdDbSymbolTableRecord)

    OdString getName() const { return m_name; }
    void setName(const OdString& name) { m_name = name; }

private:
    OdString m_name;
};
using OdDbSymbolTableRecordPtr = OdSmartPtr<OdDbSymbolTableRecord>;

// A line type: its description and its dash pattern, in drawing units. A
// positive length is a dash, a negative one a gap, zero a dot; no dashes at
// all is a continuous line.
class OdDbLinetypeTableRecord : public OdDbSymbolTableRecord
{
public:
    ODDB_DECLARE_CAST(OdDbLinetypeTableRecord)

    OdString comments() const { return m_comments; }
    void setComments(const OdString& comments) { m_comments = comments; }
    int numDashes() const { return static_cast<int>(m_dashes.size()); }
    // 0 outside the dashes.
    double dashLengthAt(int index) const;
    void setDashes(const OdArray<double>& dashes);
    // The length of one repetition: the dashes' lengths without their signs.
    double patternLength() const;

private:
    std::vector<double> m_dashes;
    OdString m_comments;
};
using OdDbLinetypeTableRecordPtr = OdSmartPtr<OdDbLinetypeTableRecord>;

// A layer: its colour, the colours it has in single viewports, its line type and line weight.
class OdDbLayerTableRecord : public OdDbSymbolTableRecord
{
public:
    ODDB_DECLARE_CAST(OdDbLayerTableRecord)

    OdCmColor color() const { return m_color; }
    void setColor(const OdCmColor& color) { m_color = color; }
    // The layer's colour in that viewport: its own there, with isOverride set,
    // else its plain colour.
    OdCmColor color(const OdDbObjectId& viewportId, bool& isOverride) const;
    void setColor(const OdCmColor& color, const OdDbObjectId& viewportId);
    OdDbObjectId linetypeObjectId() const { return m_linetype; }
    void setLinetypeObjectId(const OdDbObjectId& linetype) { m_linetype = linetype; }
    OdDb::LineWeight lineWeight() const { return m_lineWeight; }
    void setLineWeight(OdDb::LineWeight weight) { m_lineWeight = weight; }

private:
    OdCmColor m_color;
    OdDbObjectId m_linetype;
    OdDb::LineWeight m_lineWeight = OdDb::kLnWtByLwDefault;
    std::map<OdDbObjectId, OdCmColor> m_viewportColors;
};
using OdDbLayerTableRecordPtr = OdSmartPtr<OdDbLayerTableRecord>;

class OdDbViewport : public OdDbObject
{
public:
    ODDB_DECLARE_CAST(OdDbViewport)
};
using OdDbViewportPtr = OdSmartPtr<OdDbViewport>;

class OdDbLayout : public OdDbObject
{
public:
    ODDB_DECLARE_CAST(OdDbLayout)

    OdString getLayoutName() const { return m_name; }
    OdDbObjectId getBlockTableRecordId() const { return m_block; }
    // Null while the layout has no viewport.
    OdDbObjectId activeViewportId() const { return m_activeViewport; }
    void setActiveViewportId(const OdDbObjectId& viewport) { m_activeViewport = viewport; }

private:
    friend class OdDbDatabase;
    OdString m_name;
    OdDbObjectId m_block;
    OdDbObjectId m_activeViewport;
};
using OdDbLayoutPtr = OdSmartPtr<OdDbLayout>;

class OdDbBlockTableRecord : public OdDbSymbolTableRecord
{
public:
    ODDB_DECLARE_CAST(OdDbBlockTableRecord)

    OdDbObjectId getLayoutId() const { return m_layout; }

private:
    friend class OdDbDatabase;
    OdDbObjectId m_layout;
};
using OdDbBlockTableRecordPtr = OdSmartPtr<OdDbBlockTableRecord>;

class OdDbDatabase;
using OdDbDatabasePtr = OdSmartPtr<OdDbDatabase>;

// A drawing: its line types (ByBlock, ByLayer and Continuous from the start),
// its layers (layer "0" from the start), the current line type, and a model
// space and a paper space layout, of which the tile mode says which is active.
class OdDbDatabase : public OdRxObject
{
public:
    static OdDbDatabasePtr createObject();
    ~OdDbDatabase() override;
    OdDbDatabase(const OdDbDatabase&) = delete;
    OdDbDatabase& operator=(const OdDbDatabase&) = delete;

    void addRef() override;
    void release() override;
    long numRefs() const override;

    // The object of that handle, erased ones too; null for an unknown handle.
    OdDbObjectPtr objectAt(std::uint64_t handle) const;

    OdDbObjectId getLinetypeByBlockId() const { return m_byBlock; }
    OdDbObjectId getLinetypeByLayerId() const { return m_byLayer; }
    OdDbObjectId getLinetypeContinuousId() const { return m_continuous; }
    // A new line type; the null id when a line type of that name exists.
    OdDbObjectId addLinetype(const OdString& name, const OdString& comments, const OdArray<double>& dashes);
    // The line type of that name, erased ones left out; null if there is none.
    OdDbObjectId getLinetypeId(const OdString& name) const;
    // The line types in the order they were added, erased ones left out.
    OdArray<OdDbObjectId> linetypeIds() const;
    OdDbObjectId getCELTYPE() const { return m_currentLinetype; }
    void setCELTYPE(const OdDbObjectId& linetype) { m_currentLinetype = linetype; }

    OdDbObjectId getLayerZeroId() const { return m_layerZero; }
    // A new layer with a continuous line type; the null id when the name is taken.
    OdDbObjectId addLayer(const OdString& name, const OdCmColor& color);
    OdArray<OdDbObjectId> layerIds() const;

    // True while the model space layout is the active one.
    bool getTILEMODE() const { return m_tileMode; }
    void setTILEMODE(bool tileMode) { m_tileMode = tileMode; }
    OdDbObjectId getModelSpaceId() const { return m_modelSpace; }
    OdDbObjectId getPaperSpaceId() const { return m_paperSpace; }
    // The block of the active layout: model space in tile mode, else paper space.
    OdDbObjectId getActiveLayoutBTRId() const { return m_tileMode ? m_modelSpace : m_paperSpace; }
    // A new viewport on the paper space layout, made its active one.
    OdDbObjectId addViewport();

private:
    OdDbDatabase();
    OdDbObjectId add(OdDbObjectPtr object);
    OdDbObjectId findByName(const std::vector<OdDbObjectId>& table, const OdString& name) const;
    OdArray<OdDbObjectId> alive(const std::vector<OdDbObjectId>& table) const;
    OdDbObjectId addLayout(const OdString& name, const OdString& blockName);

    long m_references = 0;
    std::uint64_t m_nextHandle = 1;
    std::map<std::uint64_t, OdDbObjectPtr> m_objects;
    std::vector<OdDbObjectId> m_linetypes;
    std::vector<OdDbObjectId> m_layers;
    OdDbObjectId m_byBlock;
    OdDbObjectId m_byLayer;
    OdDbObjectId m_continuous;
    OdDbObjectId m_currentLinetype;
    OdDbObjectId m_layerZero;
    OdDbObjectId m_modelSpace;
    OdDbObjectId m_paperSpace;
    bool m_tileMode = true;
};
