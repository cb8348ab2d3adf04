#include "qwxnotebook.h"

#include "controlproperties_p.h"
#include "qwximagelist.h"

#include <QDebug>
#include <QQuickItem>

namespace dbr {

class qwxNotebookPrivate
{
public:
    std::shared_ptr<qwxImageList> imageList;
};

namespace {

// The tab of a page; null without such a tab.
QQuickItem* tabOf(QObject& bar, int page)
{
    QQuickItem* tab = nullptr;
    QMetaObject::invokeMethod(&bar, "itemAt", Qt::DirectConnection, Q_RETURN_ARG(QQuickItem*, tab), Q_ARG(int, page));
    return tab;
}

} // namespace

qwxNotebook::qwxNotebook(const OdString& name, qwxWindow& parent)
    : qwxControl(name, parent)
    , d(std::make_unique<qwxNotebookPrivate>())
{}

qwxNotebook::~qwxNotebook() = default;

int qwxNotebook::GetSelection() const
{
    return controlproperties::currentIndex(*this);
}

void qwxNotebook::SetSelection(int page)
{
    controlproperties::setCurrentIndex(*this, page);
}

void qwxNotebook::HidePage(int page)
{
    QObject* bar = findObject();
    if (!bar)
        return;
    if (QQuickItem* tab = tabOf(*bar, page)) {
        tab->setProperty("visible", false);
        tab->setProperty("width", 0);
    }
}

void qwxNotebook::SetImageList(std::shared_ptr<qwxImageList> imageList)
{
    d->imageList = std::move(imageList);
}

void qwxNotebook::SetPageImage(int page, int image)
{
    QObject* bar = findObject();
    if (!bar)
        return;
    QQuickItem* tab = tabOf(*bar, page);
    if (!tab) {
        qWarning() << "Unable to set page" << page << "image";
        return;
    }
    if (d->imageList)
        tab->setProperty("image", d->imageList->getImage(image));
}

} // namespace dbr
