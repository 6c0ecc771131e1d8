#pragma once

#include "exchangelog.h"
#include "options.h"
#include "portresolver.h"
#include "session.h"
#include "terminalboxes.h"

#include <memory>

/// What a command works with: a port, the store read-only, and a session that keeps nothing.
class Bench
{
public:
    /// A bench on a real or simulated port.
    explicit Bench(const CommonOptions &options);
    /// A bench on the bytes of a saved reply.
    Bench(const CommonOptions &options, const QByteArray &reply);

    Session &session() { return *m_session; }
    Port &port() { return *m_port; }
    /// The log that the window writes too; a saved reply has none.
    ExchangeLog *log() const { return m_log.get(); }
    TerminalBoxes &boxes() { return m_boxes; }

private:
    void start(const CommonOptions &options, Intervals intervals);

    StoreQueue m_store;
    TerminalBoxes m_boxes{Language::Portuguese};
    PortResolver m_resolver;
    std::unique_ptr<ExchangeLog> m_log; ///< outlives the port, which tells its last bytes when it closes
    std::unique_ptr<Port> m_port;
    std::unique_ptr<Session> m_session;
};
