#pragma once

#include <QColor>
#include <QImage>
#include <QString>

#include <wx/colour.h>
#include <wx/image.h>
#include <wx/string.h>

#include <oda/OdString.h>

// Stand-in for the application's Qt utility conversions between the SDK's,
// wxWidgets' and Qt's string, colour and image types. All strings convert losslessly.
namespace qut {

QString toQt(const OdString& text);
QString toQt(const wxString& text);
QColor toQt(const wxColour& colour);

wxString wxFromQt(const QString& text);
// An invalid QColor gives an invalid wxColour.
wxColour wxFromQt(const QColor& colour);
wxString wxFromOd(const OdString& text);
OdString odFromQt(const QString& text);
OdString odFromWx(const wxString& text);

// A copy of the image, with its alpha channel where it has one; null for an invalid image.
QImage convertImage(const wxImage& image);

} // namespace qut
