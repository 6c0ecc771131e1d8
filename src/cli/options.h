#pragma once

#include "language.h"

#include <QMap>
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

/// The screen that a command runs, and its own options; what is not given comes from the store.
struct ScreenOptions
{
    QString screen; ///< as the command line names it: "buckldo"
    QString replyFile;
    QMap<QString, QString> given; ///< the texts of its options by their names: "--kind"
};
