#include "qtconversions.h"

namespace qut {

namespace {

OdString odFromWide(const std::wstring& wide)
{
    return OdString(wide.c_str(), static_cast<int>(wide.size()));
}

} // namespace

QString toQt(const OdString& text)
{
    return QString::fromWCharArray(text.c_str(), text.getLength());
}

QString toQt(const wxString& text)
{
    return QString::fromStdWString(text.ToStdWstring());
}

QColor toQt(const wxColour& colour)
{
    if (!colour.IsOk())
        return QColor();
    return QColor(colour.Red(), colour.Green(), colour.Blue(), colour.Alpha());
}

wxString wxFromQt(const QString& text)
{
    return wxString(text.toStdWString());
}

wxString wxFromOd(const OdString& text)
{
    return wxString(text.c_str(), static_cast<size_t>(text.getLength()));
}

OdString odFromQt(const QString& text)
{
    return odFromWide(text.toStdWString());
}

OdString odFromWx(const wxString& text)
{
    return odFromWide(text.ToStdWstring());
}

QImage convertImage(const wxImage& image)
{
    if (!image.IsOk())
        return QImage();
    const int width = image.GetWidth();
    const int height = image.GetHeight();
    QImage result(width, height, QImage::Format_ARGB32);
    const unsigned char* rgb = image.GetData();
    const unsigned char* alpha = image.HasAlpha() ? image.GetAlpha() : nullptr;
    for (int y = 0; y < height; ++y) {
        auto* line = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < width; ++x) {
            const int pixel = y * width + x;
            const unsigned char* p = rgb + 3 * pixel;
            line[x] = qRgba(p[0], p[1], p[2], alpha ? alpha[pixel] : 255);
        }
    }
    return result;
}

} // namespace qut
