#pragma once

#include "replyplan.h"

/// A planned reply on its way out: what may be written by when. Knows no line and no clock.
class Outflow
{
public:
    /// A pace of 0 bytes per second holds nothing back but the prompt.
    Outflow(ReplyPlan plan, int bytesPerSecond);

    /// The bytes that may go now, so long after the first one.
    QByteArray due(std::chrono::milliseconds sinceStart) const;
    /// Whether the bytes that are due have to go in one write.
    bool isDueWhole() const;
    void take(qsizetype bytes);
    bool isDone() const;
    bool unplugsAfter() const { return m_plan.thenUnplug; }

private:
    qsizetype allowance(std::chrono::milliseconds sinceStart) const;
    void skipEmpty();

    ReplyPlan m_plan;
    int m_bytesPerSecond;
    qsizetype m_sent = 0;
};
