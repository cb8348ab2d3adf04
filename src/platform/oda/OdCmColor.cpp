#include "OdCmColor.h"

namespace {

constexpr std::uint16_t byLayerIndex = 256;
constexpr std::uint16_t byBlockIndex = 0;

std::uint32_t packed(OdCmColor::ColorMethod method, std::uint32_t payload)
{
    return (std::uint32_t(method) << 24) | (payload & 0xFFFFFF);
}

} // namespace

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
    default: return 257; // the SDK's answer for a true colour or none
    }
}
