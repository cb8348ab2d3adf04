#include "OdApDocument.h"

#include <algorithm>

OdApDocument::OdApDocument(const OdString& name, OdDbDatabasePtr database)
    : m_name(name)
    , m_database(std::move(database))
{}

OdApDocument::~OdApDocument() = default;

OdApDocManagerReactor::~OdApDocManagerReactor() = default;

void OdApDocManagerReactor::documentCreated(OdApDocument*) {}

void OdApDocManagerReactor::documentBecameCurrent(OdApDocument*) {}

void OdApDocManagerReactor::documentToBeDestroyed(OdApDocument*) {}

void OdApDocManagerReactor::documentDestroyed(const OdString&) {}

OdApDocManager::OdApDocManager() = default;

OdApDocManager::~OdApDocManager()
{
    while (!m_documents.empty())
        closeDocument(m_documents.back().get());
}

void OdApDocManager::addReactor(OdApDocManagerReactor* reactor)
{
    if (reactor && std::find(m_reactors.begin(), m_reactors.end(), reactor) == m_reactors.end())
        m_reactors.push_back(reactor);
}

void OdApDocManager::removeReactor(OdApDocManagerReactor* reactor)
{
    m_reactors.erase(std::remove(m_reactors.begin(), m_reactors.end(), reactor), m_reactors.end());
}

template<typename Call>
void OdApDocManager::tell(Call call)
{
    // A reactor may remove itself, or another, while it is told.
    const std::vector<OdApDocManagerReactor*> reactors = m_reactors;
    for (OdApDocManagerReactor* reactor : reactors) {
        if (std::find(m_reactors.begin(), m_reactors.end(), reactor) != m_reactors.end())
            call(*reactor);
    }
}

bool OdApDocManager::isOpen(const OdApDocument* document) const
{
    return std::any_of(m_documents.begin(), m_documents.end(),
                       [document](const std::unique_ptr<OdApDocument>& open) { return open.get() == document; });
}

OdApDocument* OdApDocManager::createDocument(const OdString& name, OdDbDatabasePtr database)
{
    m_documents.push_back(std::make_unique<OdApDocument>(name, std::move(database)));
    OdApDocument* document = m_documents.back().get();
    tell([document](OdApDocManagerReactor& reactor) { reactor.documentCreated(document); });
    activateDocument(document);
    return document;
}

void OdApDocManager::activateDocument(OdApDocument* document)
{
    if (!isOpen(document))
        return;
    m_current = document;
    tell([document](OdApDocManagerReactor& reactor) { reactor.documentBecameCurrent(document); });
}

void OdApDocManager::closeDocument(OdApDocument* document)
{
    if (!isOpen(document))
        return;
    tell([document](OdApDocManagerReactor& reactor) { reactor.documentToBeDestroyed(document); });
    const OdString name = document->name();
    const auto found =
        std::find_if(m_documents.begin(), m_documents.end(),
                     [document](const std::unique_ptr<OdApDocument>& open) { return open.get() == document; });
    std::unique_ptr<OdApDocument> closing = std::move(*found);
    m_documents.erase(found);
    const bool wasCurrent = m_current == document;
    if (wasCurrent)
        m_current = nullptr;
    closing.reset();
    tell([&name](OdApDocManagerReactor& reactor) { reactor.documentDestroyed(name); });
    if (!wasCurrent)
        return;
    if (m_documents.empty())
        tell([](OdApDocManagerReactor& reactor) { reactor.documentBecameCurrent(nullptr); });
    else
        activateDocument(m_documents.back().get());
}

OdApDocument* OdApDocManager::documentAt(int index) const
{
    return index >= 0 && index < documentCount() ? m_documents[size_t(index)].get() : nullptr;
}
