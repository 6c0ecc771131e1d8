#include "store.h"

#include <utility>

using namespace Qt::StringLiterals;

Result<Transaction> Transaction::begin(Store &store)
{
    // Takes the write lock now: a lock met halfway could only be answered by starting over.
    if (const Result<Done> begun = store.execute(u"BEGIN IMMEDIATE"_s); !begun)
        return begun.trouble();
    return Transaction(store);
}

Transaction::Transaction(Transaction &&other) noexcept : m_store(std::exchange(other.m_store, nullptr)) {}

Transaction::~Transaction()
{
    if (m_store)
        (void)m_store->execute(u"ROLLBACK"_s);
}

Result<Done> Transaction::commit()
{
    const Result<Done> committed = m_store->execute(u"COMMIT"_s);
    if (committed)
        m_store = nullptr;
    return committed;
}
