#include "linetypemodel.h"

#include <dlgbridge/core/translation_p.h>
#include <dlgbridge/services/idialogfactory.h>
#include <dlgbridge/services/iguicontroller.h>

#include <QQmlEngine>

#include <wx/bitmap.h>
#include <wx/gdicmn.h>
#include <wx/image.h>

#include <ca/CaApp.h>
#include <qut/qtconversions.h>
#include <wut/guicolor.h>

#include <vector>

namespace dbr {

namespace {

constexpr int objectRole = 0;
// The theme colour that previews are drawn with.
constexpr int previewColour = 18;

} // namespace

LineTypeObject::LineTypeObject(const QString& name, LineTypeModel* owner, const OdDbObjectId& lineType)
    : lineTypeName(name)
    , model(owner)
    , id(lineType)
{
    // The model owns its rows. QML takes an object that a method gives in a
    // QVariant (the combos' model.data(...)) as its own to collect unless told.
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

LineTypeObject::~LineTypeObject() = default;

QImage LineTypeObject::lineTypePreview(int width, int height)
{
    if (preview.width() == width && preview.height() == height)
        return preview;
    if (width >= 1 && height >= 1) {
        QImage drawn = model->createBitmap(width, height, id);
        if (drawn.size() != preview.size())
            preview = std::move(drawn);
    }
    return preview;
}

class LineTypeModelImpl
{
public:
    LineTypeModelImpl(LineTypeModel& owner, const LineTypeModelParams& params, IGuiController& guiController,
                      IDialogFactory& dialogFactory, const QSize& modelSize, RegisterAsReactor registration)
        : gui(&guiController)
        , dialogs(&dialogFactory)
        , q(owner)
        , size(modelSize)
        , registerAsReactor(registration)
        , database(params.database)
        , referenceId(params.referenceId)
        , optionA(params.optionA)
        , optionB(params.optionB)
    {}

    int rowCount() const { return static_cast<int>(rows.size()); }
    bool isRow(int index) const { return index >= 0 && index < rowCount(); }
    OdDbObjectId idAt(int index) const { return isRow(index) ? rows[size_t(index)]->id : OdDbObjectId::kNull; }

    bool listLineTypes(LineTypeIdList& list)
    {
        return database && gui->lineTypeIds(database.get(), !optionB, &referenceId, !optionA, list);
    }

    QString localName(const OdDbSymbolTableRecord& record) const
    {
        return qut::toQt(gui->localLineTypeName(record.getName().c_str()));
    }

    void appendRow(const QString& name, const OdDbObjectId& id)
    {
        rows.push_back(std::make_unique<LineTypeObject>(name, &q, id));
    }

    void rebuildRows()
    {
        // The signal fires however the function is left.
        struct Announce
        {
            LineTypeModelImpl& impl;
            const int kept;
            ~Announce()
            {
                if (impl.currentIndex != kept)
                    Q_EMIT impl.q.currentIndexChanged();
            }
        } announce{*this, currentIndex};

        const OdDbObjectId selection = isVarious ? OdDbObjectId::kNull : idAt(currentIndex);
        currentIndex = 0;
        rows.clear();
        LineTypeIdList list;
        if (!listLineTypes(list))
            return;
        int selected = -1;
        for (const OdDbObjectId& id : list.ids) {
            const OdDbSymbolTableRecordPtr record = OdDbSymbolTableRecord::cast(id.openObject());
            if (!record)
                continue;
            appendRow(localName(*record), id);
            if (selected < 0 && !selection.isNull() && id == selection)
                selected = rowCount() - 1;
        }
        if (isVarious) {
            currentIndex = rowCount();
            appendRow(translated("*Varies*"), OdDbObjectId::kNull);
        } else if (selected >= 0) {
            currentIndex = selected;
        }
        appendRow(translated("Load..."), OdDbObjectId::kNull);
    }

    void rebuild(bool emitReset)
    {
        if (emitReset)
            q.beginResetModel();
        rebuildRows();
        if (emitReset)
            q.endResetModel();
    }

    void replaceDatabase(OdDbDatabasePtr replacement)
    {
        if (replacement == database)
            return;
        rows.clear();
        currentIndex = -1;
        database = std::move(replacement);
    }

    // The loader, and the row to show after it; nothing when it was cancelled.
    std::optional<int> runLoadDialog(int current, qut::QtWindowParent* parent)
    {
        if (!database)
            return current;
        OdArray<OdString> names;
        if (!dialogs->loadLineTypes(parent ? parent->getWxParent() : nullptr, database.get(), names, wxString(),
                                    OdString()))
            return std::nullopt;
        const QString noted = isRow(current) ? rows[size_t(current)]->lineTypeName : QString();
        rebuild(true);
        const QString wanted = names.size() == 1 ? qut::toQt(names[0]) : noted;
        return firstRowNamed(wanted);
    }

    int firstRowNamed(const QString& name) const
    {
        for (int row = 0; row < rowCount(); ++row) {
            if (rows[size_t(row)]->lineTypeName == name)
                return row;
        }
        return -1;
    }

    IGuiController* const gui;
    IDialogFactory* const dialogs;
    LineTypeModel& q;
    int currentIndex = 0;
    bool isVarious = false;
    const QSize size;
    const RegisterAsReactor registerAsReactor;
    std::vector<std::unique_ptr<LineTypeObject>> rows;
    OdDbDatabasePtr database;
    OdDbObjectId referenceId;
    const int optionA;
    const int optionB;
};

LineTypeModel::LineTypeModel(const LineTypeModelParams& params, IGuiController& gui, IDialogFactory& dialogs,
                             const QSize& size, RegisterAsReactor registerAsReactor)
    : d(std::make_unique<LineTypeModelImpl>(*this, params, gui, dialogs, size, registerAsReactor))
{
    qRegisterMetaType<qut::QtWindowParent*>();
    d->rebuildRows();
    if (OdApDocManager* manager = ca::CaApp::getOdapDocManager();
        manager && registerAsReactor == RegisterWithDocManager)
        manager->addReactor(this);
}

LineTypeModel::~LineTypeModel()
{
    if (OdApDocManager* manager = ca::CaApp::getOdapDocManager();
        manager && d->registerAsReactor == RegisterWithDocManager)
        manager->removeReactor(this);
    d->database.release();
    d->rows.clear();
}

int LineTypeModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : d->rowCount();
}

QVariant LineTypeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || !d->isRow(index.row()) || role != objectRole)
        return QVariant();
    return QVariant::fromValue<QObject*>(d->rows[size_t(index.row())].get());
}

QHash<int, QByteArray> LineTypeModel::roleNames() const
{
    return {{objectRole, "object"}};
}

int LineTypeModel::getCurrentIndex() const
{
    return d->currentIndex;
}

void LineTypeModel::setCurrentIndex(int index)
{
    if (!d->isRow(index))
        return;
    // The flag survives only on the row before last, whether or not that is the varies row.
    if (index != d->rowCount() - 2)
        d->isVarious = false;
    d->currentIndex = index;
    Q_EMIT currentIndexChanged();
    Q_EMIT currentLineTypeChanged();
}

void LineTypeModel::setCurrentIndex(const OdDbObjectId& id)
{
    if (id.isNull())
        return;
    if (d->isVarious) {
        setCurrentIndex(d->rowCount() - 2);
        return;
    }
    if (const std::optional<int> row = getLineTypeIndex(id))
        setCurrentIndex(*row);
}

bool LineTypeModel::getIsVarious() const
{
    return d->isVarious;
}

void LineTypeModel::setIsVarious(bool various)
{
    d->isVarious = various;
}

QSize LineTypeModel::getSize() const
{
    return d->size;
}

QString LineTypeModel::getTooltip() const
{
    return translated("Line Type Combo");
}

bool LineTypeModel::resetLineTypes(bool emitReset)
{
    if (!d->database)
        return false;
    LineTypeIdList list;
    const int count = d->listLineTypes(list) ? static_cast<int>(list.ids.size()) : 0;
    if (count == 0)
        return false;
    // An unchanged count is taken as an unchanged list.
    if (count == d->rowCount() - (d->isVarious ? 2 : 1))
        return false;
    d->rebuild(emitReset);
    return true;
}

bool LineTypeModel::resetLineTypes(bool emitReset, OdSmartPtr<OdDbDatabase> database)
{
    if (database == d->database)
        return resetLineTypes(emitReset);
    if (emitReset)
        beginResetModel();
    d->replaceDatabase(std::move(database));
    d->rebuildRows();
    if (emitReset)
        endResetModel();
    return true;
}

std::optional<int> LineTypeModel::getLineTypeIndex(const OdDbObjectId& id) const
{
    for (int row = 0; row < d->rowCount(); ++row) {
        if (d->rows[size_t(row)]->id == id)
            return row;
    }
    return std::nullopt;
}

const LineTypeObject* LineTypeModel::getLineType(int index) const
{
    return d->isRow(index) ? d->rows[size_t(index)].get() : nullptr;
}

QImage LineTypeModel::createBitmap(int width, int height, OdDbObjectId id) const
{
    wxColour colour = wut::guiColor(wut::EGuiColor(previewColour));
    // Pure black would read as a mask colour on its way through wx.
    if (colour == *wxStockGDI::GetColour(wxStockGDI::COLOUR_BLACK))
        colour = wxColour(1, 1, 1, 255);
    const OdDbSymbolTableRecordPtr record = OdDbSymbolTableRecord::cast(id.openObject());
    if (!record)
        return QImage();
    const OdString localName = d->gui->localLineTypeName(record->getName().c_str());
    wxBitmap bitmap;
    if (!d->gui->drawLineTypePreview(width, height, colour, id, OdDbObjectId::kNull, localName, bitmap))
        return QImage();
    return qut::convertImage(bitmap.ConvertToImage());
}

int LineTypeModel::showLoadLineTypesDialog(int currentIndex, qut::QtWindowParent* pParent)
{
    return d->runLoadDialog(currentIndex, pParent).value_or(d->currentIndex);
}

int LineTypeModel::showLoadLineTypesDialog(int currentIndex)
{
    return showLoadLineTypesDialog(currentIndex, nullptr);
}

int LineTypeModel::getIndexFromLocalName(QString localName)
{
    return std::max(d->firstRowNamed(localName), 0);
}

QString LineTypeModel::getLocalName(int index)
{
    return d->isRow(index) ? d->rows[size_t(index)]->lineTypeName : QString();
}

void LineTypeModel::setCurrentIndexOrLoad(int newIndex)
{
    // An empty model isn't a state for this call; it notes no line type then.
    const OdDbObjectId noted = d->idAt(d->currentIndex);
    if (!d->isRow(newIndex))
        return;
    setCurrentIndex(newIndex);
    if (newIndex != d->rowCount() - 1)
        return;
    // The load row is current now, so its text is what the loader notes.
    const std::optional<int> shown = d->runLoadDialog(d->currentIndex, nullptr);
    if (shown && *shown != d->rowCount() - 1) {
        setCurrentIndex(*shown);
        return;
    }
    if (const std::optional<int> row = noted.isNull() ? std::nullopt : getLineTypeIndex(noted))
        setCurrentIndex(*row);
}

void LineTypeModel::documentBecameCurrent(OdApDocument* document)
{
    resetLineTypes(true, document ? document->database() : nullptr);
}

void LineTypeModel::documentToBeDestroyed(OdApDocument* document)
{
    if (!document || document->database() != d->database.get())
        return;
    beginResetModel();
    d->replaceDatabase(nullptr);
    endResetModel();
}

} // namespace dbr
