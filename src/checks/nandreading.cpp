#include "nandreading.h"

#include "catalogue.h"
#include "communication.h"
#include "replytext.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kLongestSize = 51;
/// A configuration that is longer was read from the storage; what the phone keeps elsewhere is shorter.
constexpr qsizetype kShortConfiguration = 7000;
constexpr std::array kAnswered = {"Passed"_L1, "Pass"_L1, "name:"_L1};

struct SizeBand
{
    int lowest;
    int highest;
    QLatin1StringView name;
};

constexpr std::array kSizes = {
    SizeBand{7, 12, "8 GB"_L1},      SizeBand{14, 20, "16 GB"_L1},      SizeBand{22, 39, "32 GB"_L1},
    SizeBand{46, 79, "64 GB"_L1},    SizeBand{81, 139, "128 GB"_L1},    SizeBand{191, 349, "256 GB"_L1},
    SizeBand{351, 699, "512 GB"_L1}, SizeBand{701, 1299, "1024 GB"_L1},
};

/// Upper case alone: what the phone prints. Anything else was damaged on its way.
std::optional<double> hexadecimal(QStringView digits)
{
    constexpr QStringView kDigits = u"0123456789ABCDEF";
    if (digits.isEmpty() || digits.size() > kLongestSize)
        return {};
    double total = 0;
    for (const QChar c : digits) {
        const qsizetype digit = kDigits.indexOf(c);
        if (digit < 0)
            return {};
        total = total * 16 + static_cast<double>(digit);
    }
    return total;
}

enum class Answer
{
    Unavailable, ///< the phone does not know the command
    Good,
    Silent,
    Faulty ///< the phone names a fault of the storage
};

Answer answerIn(const NandInput &input)
{
    const QString &reply = input.reply;
    if (reply.contains("not found"_L1))
        return Answer::Unavailable;
    if (input.test == NandTest::Configuration) {
        if (reply.size() > kShortConfiguration)
            return Answer::Good;
        return reply.contains("Driver is missing!"_L1) ? Answer::Faulty : Answer::Silent;
    }
    if (std::ranges::any_of(kAnswered, [&](QLatin1StringView word) { return reply.contains(word); }))
        return Answer::Good;
    return reply.contains("ERROR"_L1) ? Answer::Faulty : Answer::Silent;
}

/// The line of the reply that tells most: behind the echo, the first with a word that decides.
QString tellingLine(const QString &reply)
{
    static constexpr std::array<QStringView, 6> kWords = {u"ERROR", u"missing", u"size:", u"UID", u"name:", u"Pass"};
    for (const QStringView word : kWords)
        if (const QString line = lineWith(reply, word); !line.isNull())
            return line;
    return {};
}

void judgeSize(Panel &panel, const NandInput &input, bool isGood)
{
    const auto size = sizeIn(input.reply);
    if (size)
        panel.fields[u"lbNand"_s].text = u"NAND "_s + *size;
    else if (isGood)
        panel.fields[u"lbNand"_s].text = u"NAND"_s;
    if (size || isGood) {
        addFact(panel, {.what = caption(u"Tamanho da NAND", input.language),
                        .reading = size.value_or(caption(u"Sem Medição", input.language)),
                        .verdict = size ? Verdict::None : Verdict::Incomplete,
                        .line = tellingLine(input.reply)});
    }
}

/// What was asked for, where the answer is one line of its own.
void tellAnswer(Panel &panel, const NandInput &input)
{
    const QString line = tellingLine(input.reply);
    const bool isAskedFor = input.test == NandTest::Id || input.test == NandTest::Info;
    if (const qsizetype colon = line.indexOf(u':'); isAskedFor && colon > 0) {
        addFact(panel, {.what = caption(nandCaption(input.test), input.language),
                        .reading = line.sliced(colon + 1).trimmed(),
                        .line = line});
    }
}

void judge(Panel &panel, const NandInput &input, Answer answer)
{
    const bool isGood = answer == Answer::Good;
    panel.fields[u"lbStatus"_s].text = communicationText(isGood, input.language);
    panel.fields[u"lbStatus2"_s].visible = isGood;
    if (isGood && input.lbNand.isEmpty())
        panel.fields[u"lbNand"_s].text = u"NAND"_s;
    if (answer == Answer::Faulty)
        panel.messages.append({u"MSG_ERRO_NAND"_s});
    addCommunication(panel, {u"NAND"_s, isGood, input.cut, tellingLine(input.reply), input.language});
    if (input.test == NandTest::Size)
        judgeSize(panel, input, isGood);
    else if (isGood)
        tellAnswer(panel, input);
}

void listRails(Panel &panel, const NandInput &input)
{
    for (const RailRow &rail : input.rails) {
        panel.rows.append({.cells = {{u"Orig"_s, rail.orig},
                                     {u"Malha"_s, rail.malha},
                                     {u"Ci"_s, rail.ci},
                                     {u"Leitura"_s, rail.leitura},
                                     {u"REF"_s, rail.ref},
                                     {u"PORC"_s, rail.porc}}});
    }
}

} // namespace

QStringView nandCaption(NandTest test)
{
    static constexpr std::array<QStringView, 5> kCaptions = {
        u"Identificação Única NAND", u"Tamanho da NAND", u"Informações da NAND", u"Configuração gravada", u"Tensões"};
    return kCaptions.at(static_cast<std::size_t>(test));
}

QLatin1StringView nandCommand(NandTest test)
{
    static constexpr std::array kCommands = {"nanduid"_L1, "nandsize"_L1, "nand --getinfo"_L1, "syscfg list"_L1, ""_L1};
    return kCommands.at(static_cast<std::size_t>(test));
}

QString sizeClass(int gb)
{
    const auto band =
        std::ranges::find_if(kSizes, [gb](const SizeBand &row) { return gb >= row.lowest && gb <= row.highest; });
    return band == kSizes.end() ? u"%1 GB APROX."_s.arg(gb) : QString(band->name);
}

std::optional<QString> sizeIn(const QString &reply)
{
    constexpr double kPerGigabyte = 1'000'000;
    const qsizetype colon = reply.indexOf(u':');
    const qsizetype bracket = reply.indexOf(u'[');
    if (colon < 0 || bracket < colon)
        return {};
    const auto total = hexadecimal(QStringView(reply).sliced(colon + 1, bracket - colon - 1).trimmed());
    const double gb = std::floor(total.value_or(0) / kPerGigabyte);
    if (!total || gb > std::numeric_limits<qint16>::max())
        return {};
    return sizeClass(static_cast<int>(gb));
}

Panel readNand(const NandInput &input)
{
    Panel panel;
    panel.screen = u"Nand"_s;
    panel.title = u"Test Nand / "_s + input.model + " - Tavimo Prelt"_L1;
    panel.fields[u"lbNand"_s].text = input.lbNand;
    panel.fields[u"lbStatus"_s].text = QString();
    panel.fields[u"lbStatus2"_s] = {.text = caption(u"ANALISE COMPLETA", input.language), .visible = false};
    panel.fields[u"txtDados"_s].text = shownReply(input.reply);
    hideMarks(panel);
    listRails(panel, input);
    if (!input.isWhole)
        return panel;
    const Answer answer = answerIn(input);
    if (answer == Answer::Unavailable) {
        const QString told = caption(u"Não disponível para 6/6P", input.language);
        panel.fields[u"txtDados"_s].text = told;
        addFact(panel, {.what = caption(nandCaption(input.test), input.language), .reading = told});
    } else {
        judge(panel, input, answer);
    }
    neverGoodWhenCut(panel, input.cut);
    return panel;
}
