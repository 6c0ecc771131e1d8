#pragma once

#include "language.h"
#include "store.h"

/// The settings that `Combos` keeps, by their column number.
enum class Combo
{
    VCoreVolts = 1,
    VCoreMilli,
    BuckLdoVolts,
    BuckLdoMilli,
    PmuVolts,
    PmuMilli,
    LinkSpeed
};

Result<QString> combo(const Store &store, Combo which);
Result<Done> setCombo(Store &store, Combo which, const QString &value);

/// The language of `Tools`; a number that is none of the three comes back as it is.
Result<Language> language(const Store &store);
Result<Done> setLanguage(Store &store, Language language);

/// The technician's or company name for reports, or empty.
Result<QString> technicianName(const Store &store);
Result<Done> setTechnicianName(Store &store, const QString &name);

/// The last model chosen, or empty.
Result<QString> lastModel(const Store &store);
Result<Done> rememberModel(Store &store, const QString &model);

/// A setting of the added table by its name, whatever its letter case; empty when it was never set.
Result<QString> setting(const Store &store, const QString &name);
Result<Done> setSetting(Store &store, const QString &name, const QString &value);
