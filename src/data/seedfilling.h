#pragma once

#include "store.h"

#include <span>

/// A query that takes one row of a seed table, its placeholders named like the columns.
struct SeedFilling
{
    QLatin1StringView seed;
    const Query *query;
    QLatin1StringView placeholders;
    QLatin1StringView unless = {}; ///< rows of this confidence stay out
};

Result<Done> fillFromSeeds(const Store &store, std::span<const SeedFilling> fillings);
