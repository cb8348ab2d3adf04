#pragma once

#include <QImage>
#include <QQuickPaintedItem>

namespace dbr::components {

// Draws a QImage, scaled into the item's bounds: QML has no item that shows an
// image held in memory rather than found at an address.
class ImageCanvas : public QQuickPaintedItem
{
    Q_OBJECT
    Q_PROPERTY(QImage image READ image WRITE setImage NOTIFY imageChanged)
    Q_DISABLE_COPY(ImageCanvas)

public:
    explicit ImageCanvas(QQuickItem* parent = nullptr);

    QImage image() const { return m_image; }
    void setImage(const QImage& image);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void imageChanged();

private:
    QImage m_image;
};

} // namespace dbr::components
