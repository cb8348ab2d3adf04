// The C++ part of the Arvela.Components module.
#include "imagecanvas.h"
#include "rowfiltermodel.h"
#include "sortfilterselectmodel.h"

#include <QQmlExtensionPlugin>
#include <qqml.h>

namespace dbr::components {

class ComponentsPlugin : public QQmlExtensionPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QQmlExtensionInterface_iid)

public:
    void registerTypes(const char* uri) override
    {
        qmlRegisterType<ImageCanvas>(uri, 1, 0, "ImageCanvas");
        qmlRegisterType<RowFilterModel>(uri, 1, 0, "RowFilterModel");
        qmlRegisterType<SortFilterSelectModel>(uri, 1, 0, "SortFilterSelectModel");
    }
};

} // namespace dbr::components

#include "componentsplugin.moc"
