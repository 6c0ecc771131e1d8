#include "bateriareading.h"

#include "catalogue.h"
#include "chipreading.h"
#include "numbertext.h"

#include <QRegularExpression>

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kDesign = "design-capacity:"_L1;
constexpr auto kNominal = "nominal-capacity:"_L1;
constexpr auto kNotTold = "*"_L1;
/// Between a label and its value stand two characters: blanks, or a blank and a quote.
constexpr qsizetype kSkipped = 2;
/// Behind a capacity stands its unit, with a blank before it or a quote behind it.
constexpr qsizetype kUnitLength = 4;

struct Fact
{
    QStringView caption;
    QLatin1StringView label;
    QStringView unit = {};  ///< as the phone writes it
    QStringView shown = {}; ///< as it is shown, a blank before it
};

constexpr std::array<Fact, kBatteryFacts> kFacts = {{
    {u"SAUDE DA BATERIA", {}},
    {u"CICLOS DE CARGA", "cycle-count:"_L1},
    {u"PORCENTAGEM DE CARGA", "charge-percentage:"_L1},
    {u"CAPACIDADE DESIGNADA", kDesign, u"mAh", u" mAh"},
    {u"CAPACIDADE ATUAL", kNominal, u"mAh", u" mAh"},
    {u"VOLTAGEM", "voltage:"_L1, u"mV", u" mV"},
    {u"CORRENTE", "current:"_L1},
    {u"TEMPERATURA", "temperature:"_L1, u"C", u" Cº"},
}};

/// The value in the reply: where it starts, and the carriage return at its end.
struct Span
{
    qsizetype start;
    qsizetype end;
};

std::optional<Span> spanBehind(const QString &reply, QLatin1StringView label)
{
    const qsizetype position = reply.indexOf(label);
    const qsizetype end = position < 0 ? -1 : reply.indexOf(u'\r', position);
    const qsizetype start = position + label.size() + kSkipped;
    return end > start ? std::optional(Span{start, end}) : std::nullopt;
}

QString withUnit(const QString &value, const Fact &fact)
{
    if (fact.unit.isEmpty())
        return value;
    const QRegularExpression unit(u" *"_s + fact.unit.toString());
    return QString(value).replace(unit, fact.shown.toString());
}

std::optional<QString> valueOf(const QString &reply, const Fact &fact)
{
    const auto span = spanBehind(reply, fact.label);
    if (!span)
        return std::nullopt;
    QString value = reply.mid(span->start, span->end - span->start);
    if (reply.at(span->start - 1) == u'"' && value.endsWith(u'"'))
        value.chop(1);
    return value.isEmpty() ? std::nullopt : std::optional(withUnit(value, fact));
}

std::optional<double> capacity(const QString &reply, QLatin1StringView label)
{
    const auto span = spanBehind(reply, label);
    const double value =
        span ? leadingNumber(reply.mid(span->start, qMax<qsizetype>(0, span->end - kUnitLength - span->start))) : 0;
    return value > 0 ? std::optional(value) : std::nullopt;
}

/// A percentage that no battery has comes of a broken line.
std::optional<int> wholePercent(double percent)
{
    constexpr double kMost = 999;
    return percent >= 0 && percent <= kMost ? std::optional(static_cast<int>(std::floor(percent))) : std::nullopt;
}

std::optional<int> charge(const QString &reply)
{
    const auto text = valueOf(reply, kFacts[2]);
    const double percent = text ? leadingNumber(*text) : kGaugeUnknown;
    return text && text->front().isDigit() ? wholePercent(percent) : std::nullopt;
}

Field gauge(std::optional<int> percent)
{
    return {.text = percent ? u"%1 %"_s.arg(*percent) : QString(), .value = percent.value_or(kGaugeUnknown)};
}

QStringList valuesOf(const QString &reply)
{
    const auto percent = batteryHealth(reply);
    QStringList values{percent ? u"%1 %"_s.arg(*percent) : QString(kNotTold)};
    for (std::size_t i = 1; i < kFacts.size(); ++i)
        values.append(valueOf(reply, kFacts.at(i)).value_or(QString(kNotTold)));
    return values;
}

/// The line of the reply that a fact was read from.
QString lineOf(const QString &reply, const Fact &fact)
{
    const auto span = fact.label.isEmpty() ? std::nullopt : spanBehind(reply, fact.label);
    if (!span)
        return {};
    const qsizetype start = reply.lastIndexOf(u'\n', span->start) + 1;
    return reply.sliced(start, span->end - start).trimmed();
}

QString note(const GaugeInput &input)
{
    return "* "_L1 +
           caption(isGaugeShort(input.model) ? u"NAO_DISP_PARA_ESSE_MODELO" : u"Sem Medição", input.language).toUpper();
}

} // namespace

std::optional<int> batteryHealth(const QString &reply)
{
    const auto design = capacity(reply, kDesign);
    const auto nominal = capacity(reply, kNominal);
    return design && nominal ? wholePercent(*nominal * 100 / *design) : std::nullopt;
}

bool isGaugeShort(const QString &model)
{
    return model.startsWith("IP 6"_L1);
}

QStringView batteryFact(int index)
{
    return kFacts.at(static_cast<std::size_t>(index)).caption;
}

Panel readBateria(const GaugeInput &input)
{
    Panel panel;
    panel.screen = u"Bateria"_s;
    panel.title = caption(u"Bateria", input.language) + " - Tavimo Prelt"_L1;
    const bool isRead = !input.reply.isEmpty();
    const QStringList values = isRead ? valuesOf(input.reply) : QStringList(kBatteryFacts, QString());
    for (int i = 0; i < kBatteryFacts; ++i) {
        panel.fields[element(u"Info", i)].text = values.at(i);
        if (isRead) {
            panel.facts.append({{{u"Dado"_s, caption(batteryFact(i), input.language).trimmed()},
                                 {u"Leitura"_s, values.at(i)},
                                 {u"Linha"_s, lineOf(input.reply, kFacts.at(static_cast<std::size_t>(i)))}}});
        }
    }
    panel.fields[u"MedidorSaude"_s] = gauge(batteryHealth(input.reply));
    panel.fields[u"MedidorCarga"_s] = gauge(charge(input.reply));
    const bool isGap = values.contains(QString(kNotTold));
    panel.fields[u"lbVar"_s] = {.text = isGap ? note(input) : QString(), .visible = isGap};
    return panel;
}
