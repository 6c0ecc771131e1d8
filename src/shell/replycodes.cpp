#include "replycodes.h"

#include <QStringTokenizer>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

static constexpr std::array kReplyCodes = {
    ReplyCode{"1"_L1, "Master"_L1, false, true},
    ReplyCode{"2"_L1, "RFs"_L1, false, true},
    ReplyCode{"3"_L1, "Displays"_L1},
    ReplyCode{"4"_L1, "Nand"_L1, true},
    ReplyCode{"5"_L1, "IC"_L1},
    ReplyCode{"6"_L1, "I2C"_L1, true},
    ReplyCode{"7"_L1, "fmHelp"_L1},
    ReplyCode{"8"_L1, "Chestnut"_L1, true, true},
    ReplyCode{"9"_L1, "Tigris"_L1, true, true},
    ReplyCode{"10"_L1, "Tristar"_L1},
    ReplyCode{"12"_L1, "Acorn"_L1},
    ReplyCode{"13"_L1, "BuckTeste"_L1, false, true},
    ReplyCode{"14"_L1, "Bateria"_L1, true},
    ReplyCode{"15"_L1, "BuckLdo"_L1},
    ReplyCode{"16"_L1, "VCores"_L1},
    ReplyCode{"17"_L1, "Outros"_L1, true, true},
    ReplyCode{"18"_L1, "PMU"_L1},
    ReplyCode{kBatteryLongCode, "Bateria"_L1, false, false, true},
    ReplyCode{kSurveyCode, "Survey"_L1},
    ReplyCode{kSurveyLongCode, "Survey"_L1, false, false, true},
    ReplyCode{"22"_L1, "Referencias"_L1},
};

const ReplyCode *replyCode(const QString &code)
{
    const auto found = std::ranges::find_if(kReplyCodes, [&](const ReplyCode &row) { return row.code == code; });
    return found == kReplyCodes.end() ? nullptr : &*found;
}

/// In one go: removing them one by one moves the rest of a flood each time.
static QString without(QStringView word, const QString &reply)
{
    QString text;
    text.reserve(reply.size());
    for (const QStringView part : QStringTokenizer{reply, word})
        text += part;
    return text;
}

QString replyForCode(const QString &code, const QString &reply, const QString &command)
{
    const ReplyCode *row = replyCode(code);
    return row && row->stripsEcho && !command.isEmpty() ? without(command, reply) : reply;
}
