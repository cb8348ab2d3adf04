#include "PanelManager.h"

#include <algorithm>

namespace oa {

void PanelContainer::removeObject(QObject* object)
{
    m_objects.erase(std::remove(m_objects.begin(), m_objects.end(), object), m_objects.end());
}

bool PanelManager::hasPanel(const OdString& name) const
{
    return m_panels.count(name) != 0;
}

PanelContainer* PanelManager::panelContainer(const OdString& name) const
{
    const auto found = m_panels.find(name);
    return found == m_panels.end() ? nullptr : found->second.get();
}

PanelContainer& PanelManager::addPanel(const OdString& name)
{
    auto& container = m_panels[name];
    if (!container)
        container = std::make_unique<PanelContainer>();
    return *container;
}

void PanelManager::removePanel(const OdString& name)
{
    m_panels.erase(name);
}

} // namespace oa
