#include "bucktestereading.h"

#include "buckresult.h"
#include "catalogue.h"
#include "numbertext.h"
#include "railreading.h"
#include "replytext.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kPass = "PASS"_L1;
constexpr auto kLineBreak = "\r\n"_L1;

/// Which bucks read nothing in diagnostics mode. An empty line is one, a null line is none; a line that is a key of the
/// catalogue is shown translated.
struct ModelNote
{
    QLatin1StringView model;
    std::array<QStringView, 4> lines;
};

constexpr std::array<QStringView, 4> kOldest = {u"   buck6 = NC = 0.000 V", u"Buck6GPU"};
constexpr std::array<QStringView, 4> kCamera6 = {u"", u"   buck1 = GPU = 0.000 V", u"   buck8 = GPU = 0.000 V",
                                                 u"   buck6 = CAMERA = 0.000 V"};
constexpr std::array<QStringView, 4> kCamera9 = {u"", u"   buck1 = GPU = 0.000 V", u"   buck8 = GPU = 0.000 V",
                                                 u"   buck9 = CAMERA = 0.000 V"};
constexpr std::array<QStringView, 4> kGraphics = {u"", u"   buck1 = GPU = 0.000 V", u"   buck8 = GPU = 0.000 V"};

constexpr std::array kNotes = {
    ModelNote{"IP 6"_L1, kOldest},        ModelNote{"IP 6 Plus"_L1, kOldest},   ModelNote{"IP 6s"_L1, kCamera6},
    ModelNote{"IP 6s Plus"_L1, kCamera6}, ModelNote{"IP 7"_L1, kCamera9},       ModelNote{"IP 7 Plus"_L1, kCamera9},
    ModelNote{"IP 8"_L1, kGraphics},      ModelNote{"IP 8 Plus"_L1, kGraphics}, ModelNote{"IP X"_L1, kGraphics},
};

QString modelNote(const QString &model, Language language)
{
    QStringList lines;
    const auto note = std::ranges::find(kNotes, model, &ModelNote::model);
    for (const QStringView line : note == kNotes.end() ? std::array<QStringView, 4>() : note->lines) {
        if (line.isNull())
            continue;
        const QString translated = line.isEmpty() ? QString() : caption(line, language);
        lines.append(translated.isEmpty() ? line.toString() : u"   "_s + translated);
    }
    lines.append(generationNote(model, language));
    return lines.join(kLineBreak);
}

/// A word that the phone had no time to finish is none.
bool isJudged(const BuckResult &result, bool cut)
{
    return result.kind == BuckResult::Kind::Check && !result.verdict.isEmpty() &&
           (!cut || result.verdict.size() == kVerdictLetters);
}

Verdict verdictOf(const BuckResult &result, bool cut)
{
    if (result.kind == BuckResult::Kind::Voltage)
        return Verdict::None;
    if (!isJudged(result, cut))
        return Verdict::Incomplete;
    if (result.verdict != kPass)
        return Verdict::Fail;
    return cut ? Verdict::Incomplete : Verdict::Pass;
}

Judgement judgement(const BuckReply &reply, const BuckResult &result, const BuckInput &input)
{
    const bool isMeasured = !result.measured.isEmpty();
    const auto deviation = isMeasured ? deviationText(result.measured, result.target) : std::nullopt;
    return {.what = u"buck%1"_s.arg(reply.buck),
            .reading = isMeasured ? result.measured + " V"_L1 : caption(u"Sem Medição", input.language),
            .reference = result.target,
            .source = u"target of the phone itself"_s,
            .deviation = deviation ? std::optional(leadingNumber(*deviation)) : std::nullopt,
            .verdict = verdictOf(result, reply.cut),
            .screen = u"BuckTeste"_s,
            .line = lineWith(reply.reply, u"mV")};
}

/// What was recorded for the buck; a recording that somebody changed is shown and called so.
QString recordedLine(const BuckReply &reply, Language language)
{
    const QString none = u"   buck%1: %2"_s.arg(reply.buck).arg(caption(u"Dados não localizados", language));
    if (!reply.recording)
        return none;
    const QString line = resultLine(buckResult(reply.recording->recording.dados, reply.buck), reply.buck, language);
    const bool isChanged = reply.recording->integrity == Integrity::Changed;
    const QString warning = isChanged ? u" ("_s + caption(u"ALTERADO", language) + u')' : QString();
    return line.isEmpty() ? none : line + warning;
}

/// In a run a buck without a result keeps its row, so that what is recorded of a buck stands beside it.
QString liveLine(const BuckResult &result, int buck, const BuckInput &input)
{
    const bool isRun = input.replies.size() + input.untested.size() > 1;
    const QString line = resultLine(result, buck, input.language);
    return line.isEmpty() && isRun ? u"   buck%1: %2"_s.arg(buck).arg(caption(u"Sem Medição", input.language)) : line;
}

/// A run that was broken off is no pass, however good its beginning was.
void addUntested(Panel &panel, const BuckInput &input)
{
    for (const int buck : input.untested) {
        panel.judgements.append({.what = u"buck%1"_s.arg(buck),
                                 .reading = caption(u"Não testado", input.language),
                                 .verdict = Verdict::Incomplete,
                                 .screen = u"BuckTeste"_s});
    }
    if (!input.untested.isEmpty())
        panel.verdict = worst(panel.verdict, Verdict::Incomplete);
}

} // namespace

BuckReading readBucks(const BuckInput &input)
{
    BuckReading reading;
    Panel &panel = reading.panel;
    QStringList recorded;
    for (const BuckReply &reply : input.replies) {
        const BuckResult result = buckResult(reply.reply, reply.buck);
        const Judgement judged = judgement(reply, result, input);
        if (const QString line = liveLine(result, reply.buck, input); !line.isEmpty()) {
            panel.lines.append(line);
            reading.verdicts.append(judged.verdict);
        }
        if (judged.verdict != Verdict::None)
            panel.judgements.append(judged);
        panel.verdict = worst(panel.verdict, judged.verdict);
        recorded.append(recordedLine(reply, input.language));
    }
    addUntested(panel, input);
    panel.screen = u"BuckTeste"_s;
    panel.title = caption(u"Auto teste de buck", input.language) + u" - Tavimo Prelt - "_s + input.model;
    panel.fields[u"ListViewComparador"_s].items = recorded;
    panel.fields[u"lbInfoBucks"_s].text = modelNote(input.model, input.language);
    return reading;
}
