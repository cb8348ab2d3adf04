#include "imagecanvas.h"

#include <QPainter>

namespace dbr::components {

ImageCanvas::ImageCanvas(QQuickItem* parent)
    : QQuickPaintedItem(parent)
{}

void ImageCanvas::setImage(const QImage& image)
{
    m_image = image;
    setImplicitSize(image.width(), image.height());
    update();
    Q_EMIT imageChanged();
}

void ImageCanvas::paint(QPainter* painter)
{
    if (!m_image.isNull())
        painter->drawImage(boundingRect(), m_image);
}

} // namespace dbr::components
