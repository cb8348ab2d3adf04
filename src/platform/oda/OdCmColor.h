#pragma once

#include <cstdint>

// Stand-in for the ODA SDK's CAD colour: a colour method and its value, packed
// as the SDK packs it (method in the top byte, then red, green, blue or index).
// A default colour is by layer.
class OdCmColor
{
public:
    enum ColorMethod : std::uint8_t {
        kByLayer = 0xC0,
        kByBlock = 0xC1,
        kByColor = 0xC2,
        kByACI = 0xC3,
        kForeground = 0xC5,
        kNone = 0xC8,
    };

    OdCmColor() = default;
    explicit OdCmColor(ColorMethod method);

    ColorMethod colorMethod() const { return static_cast<ColorMethod>(m_value >> 24); }
    // Keeps the payload: a colour made true colour keeps its red, green and blue.
    void setColorMethod(ColorMethod method);
    bool isByLayer() const { return colorMethod() == kByLayer; }
    bool isByBlock() const { return colorMethod() == kByBlock; }
    bool isByColor() const { return colorMethod() == kByColor; }
    bool isByACI() const { return colorMethod() == kByACI; }
    // The drawing's foreground: its own method, or index 7 of the index table.
    bool isForeground() const { return colorMethod() == kForeground || (isByACI() && colorIndex() == 7); }
    bool isNone() const { return colorMethod() == kNone; }

    // A true colour (kByColor).
    void setRGB(std::uint8_t red, std::uint8_t green, std::uint8_t blue);
    // A true colour's own, an indexed colour's from the index table (the
    // foreground's is white); otherwise the payload's bytes.
    std::uint8_t red() const { return static_cast<std::uint8_t>(rgb() >> 16); }
    std::uint8_t green() const { return static_cast<std::uint8_t>(rgb() >> 8); }
    std::uint8_t blue() const { return static_cast<std::uint8_t>(rgb()); }

    // The red, green and blue (0xRRGGBB) of an entry of the colour index
    // table, 1 to 255; 0 for any other index.
    static std::uint32_t lookUpRGB(std::uint16_t index);

    // An index of the colour index table: 1 to 255 are its colours, 0 is by
    // block and 256 by layer, as in the SDK.
    void setColorIndex(std::uint16_t index);
    // 256 by layer, 0 by block, 7 for the foreground, 257 for a true colour or none.
    std::uint16_t colorIndex() const;

    // The packed value.
    std::uint32_t color() const { return m_value; }
    void setColor(std::uint32_t value) { m_value = value; }

    friend bool operator==(const OdCmColor& a, const OdCmColor& b) { return a.m_value == b.m_value; }
    friend bool operator!=(const OdCmColor& a, const OdCmColor& b) { return !(a == b); }

private:
    std::uint32_t rgb() const;

    std::uint32_t m_value = std::uint32_t(kByLayer) << 24;
};
