#include "lineweightmodel.h"

#include <dlgbridge/core/translation_p.h>
#include <dlgbridge/services/iguicontroller.h>

#include <QQmlEngine>

#include <oa/SysVars.h>

#include <stdexcept>
#include <vector>

namespace dbr {

namespace {
constexpr int objectRole = 0;
} // namespace

LineWeightObject::LineWeightObject(const QString& name, double factor, OdDb::LineWeight lineWeight)
    : lineWeightName(name)
    , lineWeightFactor(factor)
    , weight(lineWeight)
{
    // The model owns its rows. QML takes an object that a method gives in a
    // QVariant (the combos' model.data(...)) as its own to collect unless told.
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

LineWeightObject::~LineWeightObject() = default;

class LineWeightModelImpl
{
public:
    explicit LineWeightModelImpl(const QSize& modelSize)
        : size(modelSize)
    {}

    int rowCount() const { return static_cast<int>(rows.size()); }

    int currentIndex = 0;
    bool isVarious = false;
    const QSize size;
    std::vector<std::unique_ptr<LineWeightObject>> rows;
};

LineWeightModel::LineWeightModel(const IGuiController& gui, const LineWeightModelParams& params, const QSize& size)
    : d(std::make_unique<LineWeightModelImpl>(size))
{
    // The interface's operations aren't const; asking doesn't change the controller.
    auto& controller = const_cast<IGuiController&>(gui);
    const int count = controller.lineWeightCount();
    // Asked even for an empty list. Unguarded: a list ending on a special value gives odd factors.
    const auto maxWeight = static_cast<double>(controller.lineWeightAt(count - 1));
    for (int i = 0; i < count; ++i) {
        const OdDb::LineWeight weight = controller.lineWeightAt(i);
        double factor = 0;
        switch (weight) {
        case OdDb::kLnWtByBlock:
            if (!params.showByBlock)
                continue;
            break;
        case OdDb::kLnWtByLayer:
            if (!params.showByLayer)
                continue;
            break;
        case OdDb::kLnWtByLwDefault:
            if (!params.showDefault)
                continue;
            factor = oa::SysVars::getLWDEFAULT() / maxWeight;
            break;
        default: factor = weight / maxWeight; break;
        }
        const OdString name = controller.lineWeightName(weight);
        d->rows.push_back(std::make_unique<LineWeightObject>(QString::fromWCharArray(name.c_str(), name.getLength()),
                                                             factor, weight));
    }
}

LineWeightModel::~LineWeightModel() = default;

int LineWeightModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : d->rowCount();
}

QVariant LineWeightModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= d->rowCount() || role != objectRole)
        return QVariant();
    return QVariant::fromValue<QObject*>(d->rows[size_t(index.row())].get());
}

QHash<int, QByteArray> LineWeightModel::roleNames() const
{
    return {{objectRole, "object"}};
}

int LineWeightModel::getCurrentIndex() const
{
    return d->currentIndex;
}

bool LineWeightModel::getIsVarious() const
{
    return d->isVarious;
}

void LineWeightModel::setIsVarious(bool various)
{
    if (various == d->isVarious)
        return;
    d->isVarious = various;
    const int rows = d->rowCount();
    if (various) {
        if (rows == 0)
            return;
        beginInsertRows(QModelIndex(), rows, rows);
        // Unlike the other two models, this text isn't translated.
        d->rows.push_back(std::make_unique<LineWeightObject>(QStringLiteral("*Varies*"), 0.0, OdDb::kLnWtByLwDefault));
        endInsertRows();
        d->currentIndex = rows;
        Q_EMIT currentItemChanged();
        return;
    }
    if (rows < 2)
        return;
    if (d->currentIndex == rows - 1) {
        d->currentIndex = 0;
        Q_EMIT currentItemChanged();
    }
    beginRemoveRows(QModelIndex(), rows - 1, rows - 1);
    d->rows.pop_back();
    endRemoveRows();
}

QString LineWeightModel::getTooltip() const
{
    return translated("Lineweight Control");
}

QSize LineWeightModel::getSize() const
{
    return d->size;
}

std::optional<int> LineWeightModel::getLineWeightIndex(OdDb::LineWeight weight) const
{
    for (int row = 0; row < d->rowCount(); ++row) {
        if (d->rows[size_t(row)]->weight == weight)
            return row;
    }
    return std::nullopt;
}

LineWeightObject* LineWeightModel::getLineWeight(int index)
{
    try {
        return d->rows.at(static_cast<size_t>(index)).get();
    } catch (const std::out_of_range&) {
        return nullptr;
    }
}

void LineWeightModel::onChangeCurrentComboIndex(int newIndex)
{
    if (newIndex == d->currentIndex || newIndex < 0 || newIndex >= d->rowCount())
        return;
    d->currentIndex = newIndex;
    Q_EMIT currentItemChanged();
    Q_EMIT notifyComboUpdateManager();
}

} // namespace dbr
