#include "errand.h"

#include "schemacheck.h"
#include "terminal.h"

using namespace Qt::StringLiterals;

Errand::Errand(CommonOptions options) : m_options(std::move(options)), m_bench(m_options)
{
    watchSession();
    watchLog(*m_bench.log());
}

Errand::Errand(CommonOptions options, const QByteArray &reply)
    : m_options(std::move(options)), m_bench(m_options, reply)
{
    watchSession();
}

void Errand::watchSession()
{
    connect(
        &session(), &Session::connectionSettled, this,
        [this] {
            if (!isEnding())
                connectedToPhone();
        },
        Qt::QueuedConnection);
    connect(&session(), &Session::connectFailed, this, [this] { finish(ExitCode::Link); });
    connect(&session(), &Session::linkLost, this, &Errand::linkWasLost);
    connect(&session(), &Session::storeFailed, this,
            [this](const Trouble &trouble) { fail(trouble, ExitCode::Store); });
    connect(&session(), &Session::refused, this, [this](const Notice &why) {
        if (!isEnding())
            printError(oneLine({why}, language()));
    });
    connect(&m_timeout, &QTimer::timeout, this, &Errand::timedOut);
    m_timeout.setSingleShot(true);
}

/// A log that takes nothing changes no verdict.
void Errand::watchLog(ExchangeLog &log)
{
    const auto tell = [this](const Trouble &trouble) { printError(oneLine(trouble, language())); };
    connect(&log, &ExchangeLog::notWritten, this, tell);
    connect(&log, &ExchangeLog::dropped, this, tell);
    connect(this, &Errand::finished, &log, &ExchangeLog::flush);
}

void Errand::linkWasLost()
{
    breakOff({u"LINK_LOST"_s}, ExitCode::Link);
}

void Errand::cancel()
{
    breakOff({u"CANCELLED"_s}, ExitCode::Incomplete);
}

/// What the screens have to say of it waits in the event loop already when the end is put behind it.
void Errand::breakOff(const Notice &why, ExitCode code)
{
    if (isEnding())
        return;
    m_isBrokenOff = true;
    printError(oneLine({why}, language()));
    note(code);
    leavePhone();
    QMetaObject::invokeMethod(
        this, [this] { finish(m_noted); }, Qt::QueuedConnection);
}

void Errand::leavePhone()
{
    session().disconnectNow();
}

void Errand::timedOut()
{
    fail({{u"IGNORED_EMPTY_REPLY"_s}}, ExitCode::Link);
}

/// The one thing that keeps a store from being written but not from being read: it is of a later version.
static Result<QList<Notice>> reservationsAbout(const Store &store)
{
    const Result<Done> ours = isOneOfOurs(store);
    return ours ? QList<Notice>() : QList<Notice>{ours.trouble().what};
}

void Errand::start()
{
    session().load();
    if (m_finished)
        return;
    if (m_options.language)
        session().chooseLanguage(*m_options.language);
    session().withStore<QList<Notice>>(Store::Access::Read, &reservationsAbout, this,
                                       [this](const QList<Notice> &reservations) {
                                           for (const Notice &reservation : reservations)
                                               printError(oneLine({reservation}, language()));
                                       });
    if (m_options.timeout)
        m_timeout.start(*m_options.timeout);
}

void Errand::connectToPhone()
{
    if (!m_finished)
        session().connectOrDisconnect(m_options.port);
}

void Errand::note(ExitCode code)
{
    m_noted = weightier(m_noted, code);
}

void Errand::finish(ExitCode code)
{
    if (std::exchange(m_finished, true))
        return;
    note(code);
    emit finished(m_noted);
}

void Errand::finishUnanswered()
{
    finish(m_isBrokenOff ? m_noted : ExitCode::Link);
}

void Errand::fail(const Trouble &trouble, ExitCode code)
{
    if (m_finished)
        return;
    printError(oneLine(trouble, language()));
    finish(code);
}
