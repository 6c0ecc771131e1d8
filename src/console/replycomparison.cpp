#include "replycomparison.h"

#include <QtConcurrent>

/// What takes longer than a blink is done beside the window.
static constexpr qsizetype kLongText = 64 << 10;

ReplyComparison::ReplyComparison(QObject *parent) : QObject(parent)
{
    connect(&m_watcher, &QFutureWatcherBase::finished, this, [this] {
        if (m_isRunning)
            take(m_watcher.result());
    });
}

void ReplyComparison::compare(const DifferenceInput &input)
{
    m_isRunning = input.live.size() + input.recorded.size() > kLongText;
    if (m_isRunning)
        m_watcher.setFuture(QtConcurrent::run(difference, input));
    else
        take(difference(input));
}

void ReplyComparison::forget()
{
    m_isRunning = false;
    m_found = {};
}

void ReplyComparison::take(const ReplyDifference &found)
{
    m_isRunning = false;
    m_found = found;
    emit compared();
}
