#include "OdCmColor.h"

namespace {

constexpr std::uint16_t byLayerIndex = 256;
constexpr std::uint16_t byBlockIndex = 0;

std::uint32_t packed(OdCmColor::ColorMethod method, std::uint32_t payload)
{
    return (std::uint32_t(method) << 24) | (payload & 0xFFFFFF);
}

// The colour index table of CAD drawings. 1 to 9 are named; 10 to 249 are 24
// hues 15 degrees apart, each in five values, full and half saturated; 250 to
// 255 are greys.
std::uint32_t indexedRGB(int index)
{
    static constexpr std::uint32_t named[] = {0x000000, 0xFF0000, 0xFFFF00, 0x00FF00, 0x00FFFF,
                                              0x0000FF, 0xFF00FF, 0xFFFFFF, 0x808080, 0xC0C0C0};
    static constexpr int greys[] = {51, 91, 132, 173, 214, 255};
    static constexpr int values[] = {255, 204, 153, 127, 76};
    if (index < 10)
        return named[index];
    if (index >= 250) {
        const auto grey = std::uint32_t(greys[index - 250]);
        return (grey << 16) | (grey << 8) | grey;
    }
    const int hue = (index - 10) / 10 * 15;
    const int variant = (index - 10) % 10;
    const double value = values[variant / 2];
    const double saturation = variant % 2 == 0 ? 1.0 : 0.5;
    const double f = (hue % 60) / 60.0;
    const double p = value * (1 - saturation);
    const double q = value * (1 - saturation * f);
    const double t = value * (1 - saturation * (1 - f));
    // Red, green and blue in each sixth of the hue circle.
    const double sextants[6][3] = {{value, t, p}, {q, value, p}, {p, value, t},
                                   {p, q, value}, {t, p, value}, {value, p, q}};
    const double* rgb = sextants[hue / 60];
    const double r = rgb[0], g = rgb[1], b = rgb[2];
    return (std::uint32_t(r) << 16) | (std::uint32_t(g) << 8) | std::uint32_t(b);
}

} // namespace

std::uint32_t OdCmColor::lookUpRGB(std::uint16_t index)
{
    return index >= 1 && index <= 255 ? indexedRGB(index) : 0;
}

std::uint32_t OdCmColor::rgb() const
{
    switch (colorMethod()) {
    case kByACI: return lookUpRGB(colorIndex());
    case kForeground: return lookUpRGB(7);
    default: return m_value & 0xFFFFFF;
    }
}

OdCmColor::OdCmColor(ColorMethod method)
    : m_value(packed(method, 0))
{}

void OdCmColor::setColorMethod(ColorMethod method)
{
    m_value = packed(method, m_value);
}

void OdCmColor::setRGB(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
{
    m_value = packed(kByColor, (std::uint32_t(red) << 16) | (std::uint32_t(green) << 8) | blue);
}

void OdCmColor::setColorIndex(std::uint16_t index)
{
    if (index == byLayerIndex)
        m_value = packed(kByLayer, 0);
    else if (index == byBlockIndex)
        m_value = packed(kByBlock, 0);
    else
        m_value = packed(kByACI, index);
}

std::uint16_t OdCmColor::colorIndex() const
{
    switch (colorMethod()) {
    case kByLayer: return byLayerIndex;
    case kByBlock: return byBlockIndex;
    case kByACI: return static_cast<std::uint16_t>(m_value & 0xFFFF);
    case kForeground: return 7;
    default: return 257; // the SDK's answer for a true colour or none
    }
}
