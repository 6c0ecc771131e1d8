#pragma once

#include "store.h"

#include <QTemporaryDir>

#include <memory>

/// A store of unknown origin, open for reading in a way that changes neither the file nor anything beside it.
class QuietStore
{
public:
    /// Trouble as `Store::open` has it, and STORE_FOREIGN for a file that is no database or far too large.
    static Result<QuietStore> open(const QString &path, std::chrono::milliseconds patience);

    const Store &store() const { return m_store; }

private:
    QuietStore(std::unique_ptr<QTemporaryDir> copies, Store store);
    static Result<QuietStore> openCopy(const QString &path);

    std::unique_ptr<QTemporaryDir> m_copies; ///< goes after the store
    Store m_store;
};
