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

/// What is wanted of a reading besides its print-out.
struct ReportWish
{
    bool address = false;             ///< the report's address is printed instead
    QString pdf = {};                 ///< the file that the report is written to
    std::optional<QString> name = {}; ///< else as the store says
    std::optional<QString> date = {}; ///< else today

    bool isWanted() const { return address || !pdf.isEmpty(); }
};

/// The screen that a command runs, and its own options; what is not given comes from the store.
struct ScreenOptions
{
    QString screen; ///< as the command line names it: "buckldo"
    QString replyFile;
    ReportWish report;
    QMap<QString, QString> given; ///< the texts of its options by their names: "--kind"
};
