#pragma once

#include "verdict.h"

#include <QRect>
#include <QString>

class QPainter;

/// The way of a block diagram's signals: what flows in comes from the left, what flows out leaves to the right.
enum class Flow
{
    In,
    Out
};

/// A pin as it is drawn: the line from the block to its readings and its name in the block.
struct PinLine
{
    QRect block;
    QRect readings;
    Flow flow;
    QString name;
    int nameRoom; ///< in the block, at either side
    Verdict verdict = Verdict::None;
};

void paintPin(QPainter &painter, const PinLine &pin);
