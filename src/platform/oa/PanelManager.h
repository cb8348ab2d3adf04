#pragma once

#include <oda/OdString.h>

#include <map>
#include <memory>
#include <vector>

class QObject;

// Stand-in for the application's docked panels: a panel name leads to a
// container, which holds the QObjects shown in that panel.
namespace oa {

class PanelContainer
{
public:
    const std::vector<QObject*>& objects() const { return m_objects; }
    // The container does not own the object; remove it before destroying it.
    void addObject(QObject* object) { m_objects.push_back(object); }
    void removeObject(QObject* object);

private:
    std::vector<QObject*> m_objects;
};

class PanelManager
{
public:
    bool hasPanel(const OdString& name) const;
    // Null for a panel not known.
    PanelContainer* panelContainer(const OdString& name) const;
    // The container of that panel, created on first use.
    PanelContainer& addPanel(const OdString& name);
    void removePanel(const OdString& name);

private:
    std::map<OdString, std::unique_ptr<PanelContainer>> m_panels;
};

} // namespace oa
