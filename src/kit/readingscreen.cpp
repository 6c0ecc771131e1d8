#include "readingscreen.h"

using namespace Qt::StringLiterals;

ReadingScreen::ReadingScreen(Session &session, QString name, QString code, QString command, QObject *parent)
    : Screen(session, std::move(name), {code}, parent), m_code(std::move(code)), m_command(std::move(command))
{
}

void ReadingScreen::read()
{
    if (m_isReading)
        return;
    if (session().isModelKnown())
        return send();
    if (session().requestModel(m_code))
        begin();
    else
        end();
}

void ReadingScreen::send()
{
    if (session().request(m_code, m_command))
        begin();
    else
        end();
}

void ReadingScreen::forgetReading()
{
    m_txtDados.clear();
    m_cut = false;
    forgetStray();
}

void ReadingScreen::begin()
{
    forgetReading();
    m_isReading = true;
    readingBegan();
    rebuild();
}

void ReadingScreen::stop()
{
    m_isReading = false;
    readingStopped();
    rebuild();
}

void ReadingScreen::end()
{
    stop();
    emit readingEnded();
}

void ReadingScreen::take(const Delivery &delivery)
{
    m_txtDados = delivery.reply;
    m_cut = delivery.cut;
    if (isPrepared())
        judgeReply();
    else
        prepare();
}

void ReadingScreen::release(Release why, const Delivery &partial)
{
    Q_UNUSED(why)
    if (!partial.reply.isEmpty())
        return take(partial);
    end();
}

void ReadingScreen::judgeReply()
{
    if (m_txtDados.isEmpty())
        session().refuse({u"IGNORED_EMPTY_REPLY"_s});
    else if (m_cut)
        session().refuse({u"REPLY_CUT"_s});
    stop();
    const bool isJudged = !m_txtDados.isEmpty() && !repeats();
    if (m_txtDados.isEmpty() || isJudged)
        emit readingEnded();
    for (const Notice &notice : reading().messages)
        session().boxes().message({notice});
    if (isJudged)
        emit judged();
}
