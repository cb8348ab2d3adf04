#pragma once

#include <cstdint>

// Stand-in for the ODA SDK's CAD colour: a colour method and its value, packed
// as the SDK packs it (method in the top byte, then red, green, blue or index).
class OdCmColor
{
public:
    enum ColorMethod : std::uint8_t {
        kByLayer = 0xC0,
        kByBlock = 0xC1,
        kByColor = 0xC2,
        kByACI = 0xC3,
        kNone = 0xC8,
    };

    OdCmColor() = default;
    explicit OdCmColor(ColorMethod method);

    ColorMethod colorMethod() const { return static_cast<ColorMethod>(m_value >> 24); }
    void setColorMethod(ColorMethod method);
    bool isByLayer() const { return colorMethod() == kByLayer; }
    bool isByBlock() const { return colorMethod() == kByBlock; }
    bool isByACI() const { return colorMethod() == kByACI; }

    void setRGB(std::uint8_t red, std::uint8_t green, std::uint8_t blue);
    std::uint8_t red() const { return static_cast<std::uint8_t>(m_value >> 16); }
    std::uint8_t green() const { return static_cast<std::uint8_t>(m_value >> 8); }
    std::uint8_t blue() const { return static_cast<std::uint8_t>(m_value); }

    // An index of the AutoCAD colour index table; by layer and by block have their own.
    void setColorIndex(std::uint16_t index);
    std::uint16_t colorIndex() const;

    std::uint32_t color() const { return m_value; }
    void setColor(std::uint32_t value) { m_value = value; }

    friend bool operator==(const OdCmColor& a, const OdCmColor& b) { return a.m_value == b.m_value; }
    friend bool operator!=(const OdCmColor& a, const OdCmColor& b) { return !(a == b); }

private:
    std::uint32_t m_value = std::uint32_t(kByLayer) << 24;
};
