#include "bench.h"

#include "home.h"
#include "replayport.h"
#include "serialport.h"

using namespace std::chrono_literals;

Bench::Bench(const CommonOptions &options)
    : m_store(configStore(homeFolder(options.home)), StoreQueue::Waiting::Blocking),
      m_log(std::make_unique<ExchangeLog>(stateFolder())),
      m_port(std::make_unique<SerialPort>())
{
    m_log->watch(*m_port);
    start(options, {});
}

Bench::Bench(const CommonOptions &options, const QByteArray &reply)
    : m_store(configStore(homeFolder(options.home)), StoreQueue::Waiting::Blocking),
      m_port(std::make_unique<ReplayPort>(reply))
{
    start(options, {.poll = 0ms});
}

void Bench::start(const CommonOptions &options, Intervals intervals)
{
    const auto deviceFor = [this](const PortAddress &address) { return m_resolver.deviceFor(address); };
    m_session = std::make_unique<Session>(SessionParts{.port = *m_port,
                                                       .store = m_store,
                                                       .boxes = m_boxes,
                                                       .deviceFor = deviceFor,
                                                       .intervals = intervals,
                                                       .keeping = Keeping::Nothing});
    QObject::connect(m_session.get(), &Session::languageChanged, m_session.get(),
                     [this] { m_boxes.setLanguage(m_session->language()); });
    if (options.language)
        m_session->chooseLanguage(*options.language);
}
