#include "surveyjudges.h"

#include "acornreading.h"
#include "bateriareading.h"
#include "buckldoreading.h"
#include "catalogue.h"
#include "chestnutreading.h"
#include "i2creading.h"
#include "icreading.h"
#include "models.h"
#include "nandreading.h"
#include "outrosreading.h"
#include "pmureading.h"
#include "rfsreading.h"
#include "tigrisreading.h"
#include "tristarreading.h"
#include "vcoresreading.h"

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

/// What stands in a rail's reading where it is never measured, and what ends a reading that is missing.
constexpr QChar kNoReadingMark = u'*';
constexpr double kWhole = 100;

/// A rail that was read without a reference is told, one that was not is of no use to anybody.
bool isTold(const EvaluatedRail &rail)
{
    return rail.verdict != Verdict::None || (!rail.row.leitura.isEmpty() && !rail.row.leitura.endsWith(kNoReadingMark));
}

QList<Judgement> judgeRails(const RailScreenTraits &traits, const SurveyInput &input)
{
    const RailInput reading{.reply = input.reply,
                            .cut = input.cut,
                            .model = input.model,
                            .language = input.language,
                            .order = traits.loadOrder};
    QList<Judgement> judgements;
    for (const RailKind &kind : traits.kinds) {
        for (const EvaluatedRail &rail : evaluatedRails(traits, reading, input.reference.rails.value(kind.kind)))
            if (isTold(rail))
                judgements.append(judgementOf(rail, traits.name));
    }
    return judgements;
}

ChipInput chipInput(const SurveyInput &input)
{
    return {input.reply, input.cut, input.model, input.language};
}

/// In this language a fact is called for the journal, so that surveys in two languages tell of the same outputs.
constexpr auto kKept = Language::Portuguese;

/// What a reading told without holding it against anything. A reading has the same facts in every language.
QList<Judgement> withFacts(const std::function<Panel(Language)> &read, Language language)
{
    const Panel panel = read(language);
    const QList<Row> kept = read(kKept).facts;
    QList<Judgement> judgements = panel.judgements;
    for (qsizetype place = 0; place < panel.facts.size(); ++place) {
        const Row &fact = panel.facts.at(place);
        const QString reading = fact.cell(u"Leitura");
        if (fact.verdict != Verdict::None || reading.isEmpty() || reading == kNoReadingMark)
            continue;
        judgements.append({.what = fact.cell(u"Dado"),
                           .reading = reading,
                           .screen = panel.screen,
                           .line = fact.cell(u"Linha"),
                           .output = panel.screen + u'/' + kept.value(place).cell(u"Dado")});
    }
    return judgements;
}

QString lineWith(const QString &reply, QLatin1StringView word)
{
    const QStringList lines = reply.split(u'\n');
    const auto found = std::ranges::find_if(lines, [word](const QString &line) { return line.contains(word); });
    return found == lines.end() ? QString() : found->trimmed();
}

Judgement health(const SurveyInput &input)
{
    Judgement judgement{.what = caption(batteryFact(0), input.language).trimmed(),
                        .reading = caption(u"MEDIDOR_NAO_INFORMA", input.language),
                        .screen = u"Bateria"_s,
                        .line = lineWith(input.reply, "nominal-capacity:"_L1),
                        .output = u"Bateria/"_s + caption(batteryFact(0), kKept).trimmed()};
    const auto percent = batteryHealth(input.reply);
    if (!percent && isGaugeShort(input.model))
        return judgement;
    const SurveyReference &reference = input.reference;
    judgement.reading = percent ? u"%1 %"_s.arg(*percent) : caption(u"Sem Medição", input.language);
    judgement.reference = u"≥ %1 %"_s.arg(reference.batteryWorn);
    judgement.source = reference.isBatteryPreset ? u"preset limit (setting battery-worn)"_s : u"setting battery-worn"_s;
    judgement.rule = Rule{reference.batteryWorn - kWhole, {}, AtLimit::Good};
    if (percent)
        judgement.deviation = *percent - kWhole;
    judgement.verdict = percent ? judged(judgement.deviation, *judgement.rule) : Verdict::Incomplete;
    return judgement;
}

/// Of a bus on which nothing is expected the answering addresses are told.
Judgement unexpected(const SurveyInput &input)
{
    const QString bus = u"I2C %1"_s.arg(input.index);
    QStringList addresses;
    for (const BusDevice &device : answeringDevices({input.index, input.reply, input.cut}, {}))
        addresses.append(u'0' + device.key);
    const QString told = addresses.isEmpty() ? caption(u"I2C_NINGUEM", input.language) : addresses.join(u' ');
    return {.what = bus, .reading = caption(u"I2C_SEM_ESPERADOS", input.language).arg(told), .screen = u"I2C"_s};
}

} // namespace

QList<Judgement> judgePower(const SurveyInput &input)
{
    QList<Judgement> judgements = judgeRails(buckLdoTraits(), input) + judgeRails(vcoresTraits(), input) +
                                  judgeRails(pmuTraits(), input) + readTristar(chipInput(input)).judgements;
    if (hasOledPanel(input.model))
        judgements += readAcorn(chipInput(input)).judgements;
    return judgements;
}

QList<Judgement> judgeCharger(const SurveyInput &input)
{
    return readTigris(chipInput(input)).judgements;
}

QList<Judgement> judgeDisplayChip(const SurveyInput &input)
{
    return readChestnut(chipInput(input)).judgements;
}

QList<Judgement> judgePortChip(const SurveyInput &input)
{
    return readIC({input.reply, input.cut, input.model, input.language}).judgements;
}

QList<Judgement> judgeBattery(const SurveyInput &input)
{
    const Judgement worn = health(input);
    QList<Judgement> judgements{worn};
    const auto read = [&input](Language language) { return readBateria({input.reply, input.model, language}); };
    for (const Judgement &fact : withFacts(read, input.language))
        if (fact.what != worn.what)
            judgements.append(fact);
    return judgements;
}

QList<Judgement> judgeBus(const SurveyInput &input)
{
    const QList<Judgement> judgements = readI2C({.replies = {{input.index, input.reply, input.cut}},
                                                 .expected = input.reference.devices,
                                                 .bus = input.index,
                                                 .model = input.model,
                                                 .language = input.language})
                                            .judgements;
    return judgements.isEmpty() ? QList{unexpected(input)} : judgements;
}

QList<Judgement> judgeStorage(const SurveyInput &input)
{
    const auto read = [&input](Language language) {
        return readNand({.test = static_cast<NandTest>(input.index),
                         .reply = input.reply,
                         .isWhole = true,
                         .cut = input.cut,
                         .model = input.model,
                         .language = language});
    };
    return withFacts(read, input.language);
}

QList<Judgement> judgeRadio(const SurveyInput &input)
{
    return readRadio({.radio = input.index,
                      .action = RadioAction::On,
                      .reply = input.reply,
                      .isWhole = true,
                      .cut = input.cut,
                      .language = input.language})
        .judgements;
}

QList<Judgement> judgeMemory(const SurveyInput &input)
{
    return readMemory({.index = input.index,
                       .reply = input.reply,
                       .isWhole = true,
                       .cut = input.cut,
                       .model = input.model,
                       .language = input.language})
        .judgements;
}
