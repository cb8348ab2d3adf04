#pragma once

#include <QAbstractItemModelTester>
#include <QIdentityProxyModel>

namespace dbr::test {

// The CAD value models give their row objects in role 0, which is
// Qt::DisplayRole, where QAbstractItemModelTester expects something that reads
// as text (a QObject* can't be given a converter, both types being Qt's own).
// The tester watches the model through an identity proxy, which passes every
// change on as it comes and shows a row object as its class name.
class RowObjectsAsText : public QIdentityProxyModel
{
public:
    explicit RowObjectsAsText(QAbstractItemModel& model)
        : QIdentityProxyModel(&model)
    {
        setSourceModel(&model);
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        const QVariant value = QIdentityProxyModel::data(index, role);
        const auto* object = value.value<QObject*>();
        return role == Qt::DisplayRole && object ? QVariant(QString::fromLatin1(object->metaObject()->className()))
                                                 : value;
    }
};

// A tester for one of the CAD value models, living as long as the model; a
// model that has one gets no second.
inline void attachModelTester(QAbstractItemModel& model, QAbstractItemModelTester::FailureReportingMode mode =
                                                             QAbstractItemModelTester::FailureReportingMode::QtTest)
{
    if (model.findChild<RowObjectsAsText*>())
        return;
    auto* view = new RowObjectsAsText(model);
    new QAbstractItemModelTester(view, mode, view);
}

} // namespace dbr::test
