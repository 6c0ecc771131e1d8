#include "complaint.h"

#include "linebytes.h"
#include "terminal.h"

static bool isBlank(const std::string &text)
{
    return QString::fromStdString(text).trimmed().isEmpty();
}

/// The parser ends its lines itself.
static std::string lineComplaint(const std::string &text)
{
    const Result<QByteArray> line = lineBytes(QString::fromStdString(text));
    if (line)
        return {};
    QString told = oneLine(line.trouble(), Language::English);
    while (told.endsWith(u'.'))
        told.chop(1);
    return told.toStdString();
}

std::string emptyComplaint(const std::string &text)
{
    return isBlank(text) ? "it is empty" : "";
}

std::string commandComplaint(const std::string &text)
{
    const std::string flaw = lineComplaint(text);
    return flaw.empty() ? emptyComplaint(text) : flaw;
}

std::string displayTextComplaint(const std::string &text)
{
    const std::string flaw = lineComplaint(text);
    return flaw.empty() && !text.empty() && isBlank(text) ? "it is nothing but blanks" : flaw;
}
