#pragma once

#include "language.h"
#include "panel.h"
#include "railrows.h"

/// The tests of the storage chip, in the order of their buttons.
enum class NandTest
{
    Id,
    Size,
    Info,
    Configuration,
    Rails ///< no command: the rails of the chip as they were read last
};

struct NandInput
{
    NandTest test = NandTest::Id;
    QString reply;        ///< empty: nothing was read yet
    bool isWhole = false; ///< it came to its end and is to be judged
    bool cut = false;
    QString model;
    Language language = Language::Portuguese;
    QString lbNand = {}; ///< the size that is known from before
    QList<RailRow> rails = {};
};

/// The command of a test; the rails have none.
QLatin1StringView nandCommand(NandTest test);

/// Whether the storage chip answers, and what it says of itself.
Panel readNand(const NandInput &input);

/// What a chip of so many kibibytes divided by a million is sold as. Between the sizes stand gaps, which are only told.
QString sizeClass(int gb);
/// The size in a reply of "nandsize"; nothing when it cannot be read.
std::optional<QString> sizeIn(const QString &reply);

/// The caption key of a test.
QStringView nandCaption(NandTest test);
