#pragma once

#include "store.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <list>

/// Units of work on the store, one after the other. A locked store is tried again: by timer where the interface must
/// not wait, blocking where nothing else is to be done.
class StoreQueue : public QObject
{
    Q_OBJECT

public:
    enum class Waiting
    {
        ByTimer,
        Blocking
    };

    explicit StoreQueue(QString path, Waiting waiting, QObject *parent = nullptr);

    QString path() const { return m_path; }

    /// Runs the work at once when nothing waits before it; `done` gets its result, unless `context` is gone by then.
    template <typename T>
    void run(Store::Access access, std::function<Result<T>(Store &)> work, QObject *context,
             std::function<void(const Result<T> &)> done)
    {
        add([this, access, work = std::move(work), guard = QPointer<QObject>(context),
             done = std::move(done)](Try which) {
            const Result<T> result = attempt<T>(access, work);
            const bool locked = isLocked(result);
            if (which != Try::Last && locked)
                return false;
            m_patience = locked ? std::chrono::milliseconds(0) : wholePatience();
            if (guard)
                done(result);
            return true;
        });
    }

    /// Works off what still waits, blocking: the program is about to end and nothing may be lost in silence.
    void finish();

public slots:
    /// Tries the waiting work again.
    void TimerStore_Timer();

private:
    enum class Try
    {
        Early,
        Last
    };
    using Attempt = std::function<bool(Try)>;

    template <typename T>
    Result<T> attempt(Store::Access access, const std::function<Result<T>(Store &)> &work) const
    {
        Result<Store> store = Store::open(m_path, access, m_patience);
        return store ? work(*store) : Result<T>(store.trouble());
    }

    template <typename T>
    static bool isLocked(const Result<T> &result)
    {
        return !result && result.trouble().what.key == QLatin1StringView("STORE_LOCKED");
    }

    /// What one unit may wait for. Who waited in vain is told; the units behind it do not wait once more each.
    std::chrono::milliseconds wholePatience() const;
    void add(Attempt attempt);
    void work();

    QString m_path;
    Waiting m_waitingWay;
    std::chrono::milliseconds m_patience;
    std::list<Attempt> m_waiting;
    QTimer m_timer;
    int m_tries = 0;
    bool m_working = false;
};
