#include "senderrand.h"

#include "commandguard.h"
#include "json.h"
#include "terminal.h"
#include "visibletext.h"

using namespace Qt::StringLiterals;

static constexpr auto kConsoleCode = "1"_L1;

SendErrand::SendErrand(CommonOptions options, QString command, const QString &logFile)
    : Errand(std::move(options)), m_command(std::move(command))
{
    if (!logFile.isEmpty())
        m_log = std::make_unique<FileLog>(logFile);
    session().attach(kConsoleCode, this);
}

SendErrand::~SendErrand()
{
    session().detach(this);
}

void SendErrand::start()
{
    Errand::start();
    if (const Result<Done> opened = m_log ? m_log->open() : Done{}; !opened)
        return fail(opened.trouble(), ExitCode::Usage);
    if (m_log)
        m_log->watch(port());
    connectToPhone();
}

void SendErrand::connectedToPhone()
{
    if (!session().request(kConsoleCode, m_command))
        finish(leavesPhoneAsItIs(m_command) ? ExitCode::Link : ExitCode::Usage);
}

void SendErrand::take(const Delivery &delivery)
{
    if (delivery.reply.isEmpty())
        return fail({{u"IGNORED_EMPTY_REPLY"_s}}, ExitCode::Link);
    print(delivery.reply, delivery.cut);
    if (delivery.cut)
        return fail({{m_timedOut ? u"REPLY_TIMED_OUT"_s : u"REPLY_CUT"_s}}, ExitCode::Incomplete);
    end(ExitCode::Good);
}

void SendErrand::takeStray(const Delivery &delivery)
{
    print(delivery.stray, delivery.cut);
    fail({{u"REPLY_STRAY"_s}}, ExitCode::Incomplete);
}

/// What a phone sends must not steer the terminal; a file gets the text as it came.
void SendErrand::print(const QString &reply, bool cut)
{
    if (options().json)
        return printOut(document({{u"command"_s, m_command}, {u"reply"_s, reply}, {u"cut"_s, cut}}));
    const QString text = QString(reply).remove(u'\r').trimmed() + u'\n';
    printOut(printsToTerminal() ? visibleText(text) : text);
}

/// What came until now is worth as much as if the line had died.
void SendErrand::timedOut()
{
    m_timedOut = true;
    session().stop(kConsoleCode);
    Errand::timedOut();
}

/// A log that is not whole is no good end.
void SendErrand::end(ExitCode code)
{
    if (m_log && m_log->isBroken())
        fail(m_log->trouble(), ExitCode::Incomplete);
    else
        finish(code);
}

void SendErrand::release(Release why, const Delivery &partial)
{
    Q_UNUSED(why)
    if (const QString came = partial.reply + partial.stray; !came.isEmpty())
        print(came, partial.cut);
}
