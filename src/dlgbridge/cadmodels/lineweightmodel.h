#pragma once

#include <dlgbridge/dlgbridge_export.h>

#include <QAbstractListModel>
#include <QSize>

#include <oda/OdDb.h>

#include <memory>
#include <optional>

namespace dbr {

class IGuiController;
class LineWeightModelImpl;

// One row of a LineWeightModel: the weight's name and how thick it is drawn,
// from 0 to 1 relative to the thickest weight.
struct DLGBRIDGE_EXPORT LineWeightObject : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString lineWeightName MEMBER lineWeightName CONSTANT)
    Q_PROPERTY(double lineWeightFactor MEMBER lineWeightFactor CONSTANT)

public:
    LineWeightObject(const QString& name, double factor, OdDb::LineWeight weight);
    ~LineWeightObject() override;
    Q_DISABLE_COPY(LineWeightObject)

    QString getLineWeightName() const { return lineWeightName; }
    double getLineWeightFactor() const { return lineWeightFactor; }
    OdDb::LineWeight lineWeight() const { return weight; }

    QString lineWeightName;
    double lineWeightFactor;
    OdDb::LineWeight weight;
};

// Which of the three special weights a LineWeightModel shows.
struct LineWeightModelParams
{
    LineWeightModelParams() = default;
    LineWeightModelParams(bool byBlock, bool byLayer, bool lwDefault)
        : showByBlock(byBlock)
        , showByLayer(byLayer)
        , showDefault(lwDefault)
    {}

    bool showByBlock = true;
    bool showByLayer = true;
    bool showDefault = true;
};

// The rows of a line weight combo: the weights IGuiController lists, in its
// order, less the special ones the params leave out, and a "*Varies*" row at
// the very end while the model varies. The list must end on the thickest
// weight, which every factor is relative to. Not linked to any document.
class DLGBRIDGE_EXPORT LineWeightModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int currentIndex READ getCurrentIndex NOTIFY currentItemChanged)
    Q_PROPERTY(QString tooltip READ getTooltip CONSTANT)
    Q_PROPERTY(QSize size READ getSize CONSTANT)

public:
    // The controller is asked here only.
    LineWeightModel(const IGuiController& gui, const LineWeightModelParams& params, const QSize& size);
    ~LineWeightModel() override;
    Q_DISABLE_COPY(LineWeightModel)

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    // Role 0 ("object") gives the row's LineWeightObject.
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    int getCurrentIndex() const;
    bool getIsVarious() const;
    // Adds the varies row at the end (which becomes current), or takes it away.
    void setIsVarious(bool various);
    QString getTooltip() const;
    QSize getSize() const;

    // The first row of that weight.
    std::optional<int> getLineWeightIndex(OdDb::LineWeight weight) const;
    // Null outside the rows.
    LineWeightObject* getLineWeight(int index);

public Q_SLOTS:
    // A row picked in a QML combo; a new row becomes current and is announced twice.
    void onChangeCurrentComboIndex(int newIndex);

Q_SIGNALS:
    void currentItemChanged();
    void notifyComboUpdateManager();

private:
    std::unique_ptr<LineWeightModelImpl> const d;
};

} // namespace dbr
