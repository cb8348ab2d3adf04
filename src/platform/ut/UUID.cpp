#include "UUID.h"

#include <QUuid>

#include <qut/qtconversions.h>

#include <cstring>

namespace ut {

namespace {

void copyInto(const QUuid& uuid, std::array<std::uint8_t, 16>& bytes)
{
    const QByteArray raw = uuid.toRfc4122();
    std::memcpy(bytes.data(), raw.constData(), bytes.size());
}

} // namespace

UUID::UUID(const OdString& text)
{
    copyInto(QUuid(qut::toQt(text)), m_bytes);
}

UUID UUID::generate()
{
    UUID result;
    copyInto(QUuid::createUuid(), result.m_bytes);
    return result;
}

bool UUID::isNull() const
{
    return m_bytes == std::array<std::uint8_t, 16>{};
}

UUID::operator OdString() const
{
    const QByteArray raw(reinterpret_cast<const char*>(m_bytes.data()), int(m_bytes.size()));
    return qut::odFromQt(QUuid::fromRfc4122(raw).toString());
}

} // namespace ut
