#pragma once

#include <oda/OdDbDatabase.h>
#include <oda/OdString.h>

#include <memory>
#include <vector>

// Stand-ins for the ODA application framework's documents: a document holds
// one drawing database; the document manager creates, activates and closes
// documents and tells its reactors, in the order they were added.

class OdApDocument
{
public:
    OdApDocument(const OdString& name, OdDbDatabasePtr database);
    OdApDocument(const OdApDocument&) = delete;
    OdApDocument& operator=(const OdApDocument&) = delete;
    ~OdApDocument();

    OdString name() const { return m_name; }
    OdDbDatabase* database() const { return m_database.get(); }

private:
    OdString m_name;
    OdDbDatabasePtr m_database;
};

// What a document manager tells. Every operation does nothing unless overridden.
class OdApDocManagerReactor
{
public:
    virtual ~OdApDocManagerReactor();

    virtual void documentCreated(OdApDocument* document);
    // document is null when no document is left to be current.
    virtual void documentBecameCurrent(OdApDocument* document);
    // The document and its database are still there.
    virtual void documentToBeDestroyed(OdApDocument* document);
    virtual void documentDestroyed(const OdString& name);

protected:
    OdApDocManagerReactor() = default;
    OdApDocManagerReactor(const OdApDocManagerReactor&) = default;
    OdApDocManagerReactor& operator=(const OdApDocManagerReactor&) = default;
};

class OdApDocManager
{
public:
    OdApDocManager();
    OdApDocManager(const OdApDocManager&) = delete;
    OdApDocManager& operator=(const OdApDocManager&) = delete;
    // Closes what is still open, telling the reactors.
    ~OdApDocManager();

    // Adding a reactor twice adds it once; removing one that isn't there does nothing.
    void addReactor(OdApDocManagerReactor* reactor);
    void removeReactor(OdApDocManagerReactor* reactor);

    // A new document on the database, which becomes current.
    OdApDocument* createDocument(const OdString& name, OdDbDatabasePtr database);
    // Makes an open document current; tells even when it was current already.
    void activateDocument(OdApDocument* document);
    // Closes an open document. When it was current, the document opened last
    // of those left becomes current, or none.
    void closeDocument(OdApDocument* document);

    OdApDocument* curDocument() const { return m_current; }
    int documentCount() const { return static_cast<int>(m_documents.size()); }
    OdApDocument* documentAt(int index) const;

private:
    template<typename Call>
    void tell(Call call);
    bool isOpen(const OdApDocument* document) const;

    std::vector<std::unique_ptr<OdApDocument>> m_documents;
    std::vector<OdApDocManagerReactor*> m_reactors;
    OdApDocument* m_current = nullptr;
};
