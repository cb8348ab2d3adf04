#include "qwximagelist.h"

#include <qut/qtconversions.h>

namespace dbr {

qwxImageList::qwxImageList(int width, int height, bool, int)
    : m_width(width)
    , m_height(height)
{}

int qwxImageList::Add(const wxBitmap& bitmap)
{
    m_images.push_back(qut::convertImage(bitmap.ConvertToImage()));
    return int(m_images.size()) - 1;
}

QImage qwxImageList::getImage(int index) const
{
    if (index < 0 || size_t(index) >= m_images.size())
        return QImage();
    return m_images[size_t(index)];
}

} // namespace dbr
