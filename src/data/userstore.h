#pragma once

#include "recordings.h"

#include <QVariantMap>

/// Everything that an import may take from another store, by placeholder where a row goes in as it is.
struct UserStore
{
    QList<QVariantMap> rails; ///< :model :net :kind :output :G1 :G2 :G3
    QList<Recording> recordings;
    QList<QVariantMap> commands; ///< :Comando :Info :Info2 :Info3
    QList<QVariantMap> combos;   ///< :Combo1 … :Combo10
    int damaged = 0;             ///< recordings that are not what was written
};

/// Reads a store of unknown origin after a close look. It is closed again and unchanged when this returns.
Result<UserStore> readUserStore(const QString &path);
