#include "storegate.h"

#include "storeinspection.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

static constexpr auto kRetryInterval = 100ms;
static constexpr int kTries = 5s / kRetryInterval;

StoreGate::StoreGate(QString path) : m_path(std::move(path))
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &StoreGate::TimerStore_Timer);
}

void StoreGate::TimerStore_Timer()
{
    const Result<Done> sound = inspectStore(m_path, StoreRole::Reference, Depth::Quick);
    const QString key = sound ? QString() : sound.trouble().what.key;
    // A store of a later version can be read; that it is not written is told with the first thing to be kept.
    if (sound || key == "STORE_NEWER"_L1)
        emit opened();
    else if (key == "STORE_LOCKED"_L1 && m_tries++ < kTries)
        m_timer.start(kRetryInterval);
    else
        emit refused(sound.trouble());
}
