#pragma once

#include <dlgbridge/core/ivalidator.h>
#include <dlgbridge/core/qwxcontrol.h>

#include <QStringList>

namespace dbr::test {

// What the validators of one test did, shared by all their copies.
struct ValidatorJournal
{
    QStringList transfers; // "to:<control>" or "from:<control>", in call order
    int destroyed = 0;
};

class JournalValidator : public IValidator
{
public:
    explicit JournalValidator(ValidatorJournal& journal)
        : m_journal(&journal)
    {}
    ~JournalValidator() override { ++m_journal->destroyed; }

    bool TransferToWindow() override { return note(QStringLiteral("to:")); }
    bool TransferFromWindow() override { return note(QStringLiteral("from:")); }
    IValidator* clone() const override { return new JournalValidator(*this); }

private:
    JournalValidator(const JournalValidator& other) = default;

    bool note(const QString& direction)
    {
        m_journal->transfers.append(direction + controlName());
        return true;
    }

    ValidatorJournal* m_journal;
};

} // namespace dbr::test
