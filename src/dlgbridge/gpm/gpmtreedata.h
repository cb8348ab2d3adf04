#pragma once

#include <dlgbridge/dlgbridge_export.h>
#include <dlgbridge/gpm/rxmembers.h>

#include <QObject>
#include <QString>
#include <QUrl>

#include <tdx/AvRxObject.h>
#include <tdx/AvSmartPtr.h>
#include <ut/UUID.h>

#include <optional>

namespace dbr {

// One row of a property panel, as QML loads, reads and edits it. It is a
// QObject for QML and a runtime object for the property system; code holding
// the QObject reaches the other side with qt_metacast("AvRxObject"). Items are
// made by factories and live as long as their smart pointers; QML never owns them.
class DLGBRIDGE_EXPORT GPMTreeData : public QObject, public AvRxObject
{
    Q_OBJECT
    Q_PROPERTY(QString type READ type CONSTANT)
    Q_PROPERTY(QString label READ label CONSTANT)
    Q_PROPERTY(QString description READ description CONSTANT)
    Q_PROPERTY(bool isReadOnly READ isReadOnly CONSTANT)
    Q_PROPERTY(QUrl componentUrl READ componentUrl CONSTANT)
    DBR_GPM_DECLARE_RX_MEMBERS(GPMTreeData)

public:
    GPMTreeData();
    ~GPMTreeData() override;

    // The word a delegate switches on; empty unless a class names one.
    virtual QString type() const;
    virtual QString label() const = 0;
    virtual QString description() const;
    virtual bool isReadOnly() const = 0;
    // The component that shows and edits the item.
    virtual QUrl componentUrl() const;
    virtual const ut::UUID& GUID() const = 0;
    virtual AvSmartPtr<const OdRxObject> getAttribute(const OdRxClass* cls,
                                                      std::optional<const OdRxObject*> object) const = 0;
    // Where the item sorts among its siblings; lighter first.
    virtual unsigned int sortWeight() const;

    // A file of the component kit's property editors, in the build tree or installed.
    static QUrl gpmComponentUrl(const QString& fileName);

Q_SIGNALS:
    void updateStarted(QString uid);
    void updateFinished(bool succeeded);

private:
    Q_DISABLE_COPY(GPMTreeData)
};

} // namespace dbr
