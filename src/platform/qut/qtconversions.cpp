#include "qtconversions.h"

#include <algorithm>

namespace qut {

namespace {

OdString odFromWide(const std::wstring& wide)
{
    return OdString(wide.c_str(), static_cast<int>(wide.size()));
}

// UTF-32 to a QString of exactly its size: Qt's own conversion keeps room for
// surrogates in every string it makes, which adds up in models of many rows.
QString fromUtf32(const wchar_t* text, size_t size)
{
    if (size == 0)
        return QString();
    const auto beyondBmp = [](wchar_t c) { return static_cast<char32_t>(c) > 0xFFFF; };
    const auto wide = std::count_if(text, text + size, beyondBmp);
    QString result(static_cast<int>(size + static_cast<size_t>(wide)), Qt::Uninitialized);
    QChar* out = result.data();
    for (const wchar_t* c = text; c != text + size; ++c) {
        const auto code = static_cast<char32_t>(*c);
        if (beyondBmp(*c)) {
            *out++ = QChar(QChar::highSurrogate(code));
            *out++ = QChar(QChar::lowSurrogate(code));
        } else {
            *out++ = QChar(static_cast<char16_t>(code));
        }
    }
    return result;
}

} // namespace

QString toQt(const OdString& text)
{
    return fromUtf32(text.c_str(), static_cast<size_t>(text.getLength()));
}

QString toQt(const wxString& text)
{
    return fromUtf32(text.wc_str(), text.length());
}

QColor toQt(const wxColour& colour)
{
    if (!colour.IsOk())
        return QColor();
    return QColor(colour.Red(), colour.Green(), colour.Blue(), colour.Alpha());
}

wxColour wxFromQt(const QColor& colour)
{
    if (!colour.isValid())
        return wxColour();
    return wxColour(colour.red(), colour.green(), colour.blue(), colour.alpha());
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
