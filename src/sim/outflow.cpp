#include "outflow.h"

#include <algorithm>
#include <limits>

using Manner = ReplyPiece::Manner;

Outflow::Outflow(ReplyPlan plan, int bytesPerSecond) : m_plan(std::move(plan)), m_bytesPerSecond(bytesPerSecond)
{
    skipEmpty();
}

QByteArray Outflow::due(std::chrono::milliseconds sinceStart) const
{
    if (isDone() || sinceStart < m_plan.pieces.first().earliest)
        return {};
    const ReplyPiece &piece = m_plan.pieces.first();
    return piece.manner == Manner::AtOnce ? piece.bytes : piece.bytes.left(allowance(sinceStart));
}

bool Outflow::isDueWhole() const
{
    return !isDone() && m_plan.pieces.first().manner == Manner::AtOnce;
}

void Outflow::take(qsizetype bytes)
{
    m_sent += bytes;
    m_plan.pieces.first().bytes.remove(0, bytes);
    skipEmpty();
}

bool Outflow::isDone() const
{
    return m_plan.pieces.isEmpty();
}

qsizetype Outflow::allowance(std::chrono::milliseconds sinceStart) const
{
    if (m_bytesPerSecond == 0)
        return std::numeric_limits<qsizetype>::max();
    return std::max<qsizetype>(0, sinceStart.count() * m_bytesPerSecond / 1000 - m_sent);
}

void Outflow::skipEmpty()
{
    while (!isDone() && m_plan.pieces.first().bytes.isEmpty())
        m_plan.pieces.removeFirst();
}
