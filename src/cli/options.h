#pragma once

#include "language.h"

#include <QString>

#include <chrono>
#include <optional>

/// The options that most commands share.
struct CommonOptions
{
    QString home;
    QString port;
    QString model;
    std::optional<Language> language;
    std::optional<std::chrono::seconds> timeout;
    bool json = false;
};

/// The options of single screens; what is not given comes from the store.
struct ScreenOptions
{
    QString screen; ///< as the command line names it: "buckldo"
    QString replyFile;
    int kind = 2;
    QString volts;
    QString amps;
};
