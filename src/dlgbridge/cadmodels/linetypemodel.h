#pragma once

#include <dlgbridge/dlgbridge_export.h>

#include <QAbstractListModel>
#include <QImage>
#include <QSize>

#include <oda/OdApDocument.h>
#include <oda/OdDbDatabase.h>
#include <oda/OdDbObjectId.h>
#include <qut/qtwindowparent.h>

#include <memory>
#include <optional>

namespace dbr {

class IDialogFactory;
class IGuiController;
class LineTypeModel;
class LineTypeModelImpl;

// One row of a LineTypeModel: a line type by its local name, or one of the two
// special rows, which have no object id. Its preview is drawn on demand and
// kept for the size last asked.
struct DLGBRIDGE_EXPORT LineTypeObject : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString lineTypeName MEMBER lineTypeName CONSTANT)

public:
    LineTypeObject(const QString& name, LineTypeModel* model, const OdDbObjectId& id);
    ~LineTypeObject() override;
    Q_DISABLE_COPY(LineTypeObject)

    OdDbObjectId objectId() const { return id; }

public Q_SLOTS:
    // The preview at that size, drawn when the size is new; a size below 1
    // gives the preview kept, a special row a null image.
    QImage lineTypePreview(int width, int height);

public:
    QString lineTypeName;
    LineTypeModel* model;
    QImage preview;
    OdDbObjectId id;
};

// Where a LineTypeModel takes its line types from, and what it hands to
// IGuiController::lineTypeIds (the two options inverted).
struct LineTypeModelParams
{
    OdDbDatabasePtr database;
    OdDbObjectId referenceId;
    int optionA = 0;
    int optionB = 1;
};

// Whether a LineTypeModel follows the application's documents.
enum RegisterAsReactor : int {
    RegisterWithDocManager = 0,
    DoNotRegister = 1,
};

// The rows of a line type combo: the line types of one database that
// IGuiController lists, then a "*Varies*" row when the rows were built while
// the model varied, and last a "Load..." row. With no database, or no list,
// there are no rows at all. Registered with the document manager, the model
// follows the current document and lets a closing one go.
class DLGBRIDGE_EXPORT LineTypeModel : public QAbstractListModel, public OdApDocManagerReactor
{
    Q_OBJECT
    Q_PROPERTY(int currentIndex READ getCurrentIndex NOTIFY currentIndexChanged)
    Q_PROPERTY(QString tooltip READ getTooltip CONSTANT)
    Q_PROPERTY(QSize size READ getSize CONSTANT)

public:
    // The controller and the factory must outlive the model; a model that
    // registered must go while the document manager is there.
    LineTypeModel(const LineTypeModelParams& params, IGuiController& gui, IDialogFactory& dialogs, const QSize& size,
                  RegisterAsReactor registerAsReactor);
    ~LineTypeModel() override;
    Q_DISABLE_COPY(LineTypeModel)

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    // Role 0 ("object") gives the row's LineTypeObject.
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    int getCurrentIndex() const;
    // Only a row is taken; any row but the one before last clears the varies
    // flag. Both signals fire, even for the same row.
    void setCurrentIndex(int index);
    // The row of that line type, or the one before last while the model varies.
    void setCurrentIndex(const OdDbObjectId& id);
    bool getIsVarious() const;
    // Only the flag: the rows follow at the next rebuild.
    void setIsVarious(bool various);
    QSize getSize() const;
    QString getTooltip() const;

    // Rebuilds when the number of line types changed; false when it didn't,
    // or there is no database or none listed.
    bool resetLineTypes(bool emitReset);
    // With another database, takes it and rebuilds.
    bool resetLineTypes(bool emitReset, OdSmartPtr<OdDbDatabase> database);

    std::optional<int> getLineTypeIndex(const OdDbObjectId& id) const;
    // Null outside the rows.
    const LineTypeObject* getLineType(int index) const;
    // A preview drawn by IGuiController; null for no line type or a failed drawing.
    QImage createBitmap(int width, int height, OdDbObjectId id) const;

public Q_SLOTS:
    // Opens the line type loader; the row to show afterwards: the one loaded
    // when it was one, else the row shown before. currentIndex when cancelled.
    int showLoadLineTypesDialog(int currentIndex, qut::QtWindowParent* pParent);
    int showLoadLineTypesDialog(int currentIndex);
    // The first row of that name; 0 when there is none.
    int getIndexFromLocalName(QString localName);
    QString getLocalName(int index);
    // A row picked in a QML pop-up: the load row opens the loader and ends on
    // the line type loaded, or back on the one current before.
    void setCurrentIndexOrLoad(int newIndex);

Q_SIGNALS:
    void currentIndexChanged();
    void currentLineTypeChanged();

private:
    void documentBecameCurrent(OdApDocument* document) override;
    void documentToBeDestroyed(OdApDocument* document) override;

    friend class LineTypeModelImpl;
    std::unique_ptr<LineTypeModelImpl> const d;
};

} // namespace dbr
