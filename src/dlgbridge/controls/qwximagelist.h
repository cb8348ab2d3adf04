#pragma once

#include <dlgbridge/dlgbridge_export.h>

#include <QImage>

#include <wx/bitmap.h>

#include <vector>

namespace dbr {

// Images for list and tree rows, by index. Each image keeps its own size: the
// list's width and height are kept for dialog code only.
class DLGBRIDGE_EXPORT qwxImageList
{
public:
    qwxImageList(int width, int height, bool mask = true, int initialCount = 1);

    // The index of the added image, counted from 0.
    int Add(const wxBitmap& bitmap);
    // A null image for an index out of range.
    QImage getImage(int index) const;

private:
    int m_width;
    int m_height;
    std::vector<QImage> m_images;
};

} // namespace dbr
