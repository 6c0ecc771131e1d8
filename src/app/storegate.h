#pragma once

#include "result.h"

#include <QObject>
#include <QTimer>

/// Looks at the store before there is a window. One that another program has locked is looked at again for a while.
class StoreGate : public QObject
{
    Q_OBJECT

public:
    explicit StoreGate(QString path);

public slots:
    /// Looks at it now.
    void TimerStore_Timer();

signals:
    void opened();
    void refused(const Trouble &trouble);

private:
    QString m_path;
    QTimer m_timer;
    int m_tries = 0;
};
