#include "AvRxObject.h"

OdRxClass* newAvRxClass(const OdString& name, OdRxClass* parent, OdPseudoConstructorType constructor)
{
    return new OdRxClass(name, parent, constructor);
}

AvRxProtocolExtManager::AvRxProtocolExtManager() = default;

AvRxProtocolExtManager::~AvRxProtocolExtManager() = default;

OdRxObjectPtr AvRxProtocolExtManager::addX(const OdRxClass* protocolClass, OdRxObject* extension)
{
    if (!extension)
        return delX(protocolClass);
    OdRxObjectPtr& slot = m_extensions[protocolClass];
    OdRxObjectPtr former = std::move(slot);
    slot = OdRxObjectPtr(extension);
    return former;
}

OdRxObjectPtr AvRxProtocolExtManager::delX(const OdRxClass* protocolClass)
{
    const auto found = m_extensions.find(protocolClass);
    if (found == m_extensions.end())
        return OdRxObjectPtr();
    OdRxObjectPtr former = std::move(found->second);
    m_extensions.erase(found);
    return former;
}

OdRxObjectPtr AvRxProtocolExtManager::getX(const OdRxClass* protocolClass) const
{
    const auto found = m_extensions.find(protocolClass);
    return found == m_extensions.end() ? OdRxObjectPtr() : found->second;
}
