#include "senderrand.h"

#include "json.h"
#include "terminal.h"

using namespace Qt::StringLiterals;

static constexpr auto kConsoleCode = "1"_L1;

SendErrand::SendErrand(CommonOptions options, QString command)
    : Errand(std::move(options)), m_command(std::move(command))
{
    session().attach(kConsoleCode, this);
}

SendErrand::~SendErrand()
{
    session().detach(this);
}

void SendErrand::start()
{
    Errand::start();
    connectToPhone();
}

void SendErrand::connectedToPhone()
{
    if (!session().request(kConsoleCode, m_command))
        finish(ExitCode::Link);
}

void SendErrand::take(const Delivery &delivery)
{
    if (delivery.reply.isEmpty())
        return fail({{u"IGNORED_EMPTY_REPLY"_s}}, ExitCode::Link);
    if (options().json)
        printOut(document({{u"command"_s, m_command}, {u"reply"_s, delivery.reply}, {u"cut"_s, delivery.cut}}));
    else
        printOut(QString(delivery.reply).remove(u'\r').trimmed() + u'\n');
    if (delivery.cut)
        return fail({{u"REPLY_CUT"_s}}, ExitCode::Incomplete);
    finish(ExitCode::Good);
}

void SendErrand::release(Release why, const Delivery &partial)
{
    Q_UNUSED(why)
    if (!partial.reply.isEmpty())
        printOut(QString(partial.reply).remove(u'\r').trimmed() + u'\n');
}
