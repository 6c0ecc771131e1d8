#include "fmhelpscreen.h"

#include "commands.h"

using namespace Qt::StringLiterals;

static constexpr auto kCode = "7"_L1;

fmHelpScreen::fmHelpScreen(Session &session, QObject *parent) : Screen(session, u"fmHelp"_s, {kCode}, parent) {}

void fmHelpScreen::read()
{
    if (session().isReady())
        session().request(kCode, u"Help"_s);
}

void fmHelpScreen::showText(const QString &text)
{
    m_text = text;
    emit textChanged();
}

void fmHelpScreen::take(const Delivery &delivery)
{
    if (delivery.cut)
        session().refuse({delivery.reply.isEmpty() ? u"IGNORED_EMPTY_REPLY"_s : u"REPLY_CUT"_s});
    if (!delivery.reply.isEmpty())
        showText(QString(delivery.reply).remove(delivery.command));
    emit readingEnded();
}

void fmHelpScreen::release(Release why, const Delivery &partial)
{
    Q_UNUSED(why)
    Q_UNUSED(partial)
}

void fmHelpScreen::btAdd_Click(const QString &line)
{
    if (line.isEmpty())
        return;
    if (line.contains(u'\''))
        return session().refuse({u"COMMAND_APOSTROPHE"_s});
    withStore<Done>(
        Store::Access::Write, [line](Store &store) { return addCommand(store, line); },
        [this](const Done &) { emit commandAdded(); });
}
