#pragma once

#include "replydifference.h"

#include <QFutureWatcher>
#include <QObject>

/// Compares replies, long ones beside the window; of several only the last counts.
class ReplyComparison : public QObject
{
    Q_OBJECT

public:
    explicit ReplyComparison(QObject *parent = nullptr);

    void compare(const DifferenceInput &input);
    /// Nothing is compared any more; what still runs does not count.
    void forget();
    bool isRunning() const { return m_isRunning; }
    const ReplyDifference &found() const { return m_found; }

signals:
    void compared();

private:
    void take(const ReplyDifference &found);

    QFutureWatcher<ReplyDifference> m_watcher;
    ReplyDifference m_found;
    bool m_isRunning = false;
};
