#include "displayguard.h"

#include <QByteArray>
#include <QString>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace {

constexpr int kNoDisplay = 2;

struct Said
{
    QByteArray all;
    QByteArray reason; ///< the first that the part of the toolkit that opens displays has to say
};

/// Only while the guard lives.
Said *said = nullptr;

void listen(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    const QByteArray line = text.simplified().toLocal8Bit();
    if (type == QtFatalMsg)
        std::_Exit(endWithoutDisplay((said->reason.isEmpty() ? line : said->reason).constData()));
    said->all += line + '\n';
    if (said->reason.isEmpty() && QByteArrayView(context.category).startsWith("qt.qpa"))
        said->reason = line;
}

} // namespace

DisplayGuard::DisplayGuard()
{
    said = new Said;
    qInstallMessageHandler(&listen);
}

/// What was said on the way and did no harm is said now.
DisplayGuard::~DisplayGuard()
{
    qInstallMessageHandler(nullptr);
    std::fputs(said->all.constData(), stderr);
    delete std::exchange(said, nullptr);
}

int endWithoutDisplay(const char *why)
{
    std::fprintf(stderr, "tavimo-prelt: there is no display (%s); prelt does the same in the terminal\n", why);
    return kNoDisplay;
}
