#pragma once

#include "language.h"
#include "panel.h"

/// What the port controller answered to its own command.
struct PortChipInput
{
    QString reply;
    bool cut = false;
    QString model;
    Language language = Language::Portuguese;
};

/// A reply of this length or less says nothing yet.
inline constexpr qsizetype kNoPortChipReply = 30;

/// The commands that it answers: 1 its properties, 2 its registers.
QLatin1StringView portChipCommand(int selector);

/// Whether the port controller answers. Only the length of the reply tells: a chip that is silent leaves a short line.
Panel readIC(const PortChipInput &input);

/// What the port controller of a model is called.
QString portChip(const QString &model);
