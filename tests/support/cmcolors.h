#pragma once

#include <oda/OdCmColor.h>

#include <cstdint>

namespace dbr::test {

inline OdCmColor indexed(int index)
{
    OdCmColor color;
    color.setColorIndex(std::uint16_t(index));
    return color;
}

inline OdCmColor rgb(int red, int green, int blue)
{
    OdCmColor color;
    color.setRGB(std::uint8_t(red), std::uint8_t(green), std::uint8_t(blue));
    return color;
}

} // namespace dbr::test
