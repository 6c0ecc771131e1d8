#include "pmureading.h"

#include "catalogue.h"
#include "numbertext.h"

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

static constexpr auto kTimedOut = "**"_L1;
static constexpr auto kCurrentPrefix = "mA"_L1;
static constexpr double kUsualTolerance = 10;

/// The graphics processor is off in diagnostics mode: its supplies show nothing.
static constexpr std::array kGraphics = {"Buck1"_L1, "Buck8"_L1, "mABuck1"_L1, "mABuck8"_L1};

static constexpr std::array kKinds = {RailKind{0, u"btVCore", u"VCore"}, RailKind{2, u"Botao1", u"Bucks"},
                                      RailKind{1, u"Botao2", u"LDOs"}};
static constexpr std::array kResting = {"FrameControle"_L1};

double toleranceOf(const QString &text)
{
    bool isNumber = false;
    const double typed = QString(text).replace(u',', u'.').toDouble(&isNumber); // C locale: "." only
    return isNumber && std::isfinite(typed) ? typed : kUsualTolerance;
}

namespace {

/// A voltage with the current of the same output; empty while there is none.
struct OutputLine
{
    EvaluatedRail volts;
    QString current = {};

    QString name() const { return volts.row.orig.toUpper(); }
};

QList<OutputLine> linesOf(const QList<EvaluatedRail> &rails)
{
    QList<OutputLine> lines;
    for (const EvaluatedRail &rail : rails)
        if (!rail.row.refT.isEmpty() && !rail.row.refV.isEmpty())
            lines.append({rail});
    return lines;
}

bool isCurrent(const RailRow &row)
{
    return row.orig.startsWith(kCurrentPrefix) && !row.refT.isEmpty() && row.porc.isEmpty();
}

void addCurrents(QList<OutputLine> &lines, const QList<EvaluatedRail> &rails)
{
    for (const EvaluatedRail &rail : rails) {
        if (!isCurrent(rail.row))
            continue;
        const QString output = rail.row.orig.sliced(kCurrentPrefix.size()).toUpper();
        const auto line = std::ranges::find(lines, output, &OutputLine::name);
        if (line != lines.end())
            line->current = rail.row.leitura;
    }
}

/// The mark follows the deviation as it is shown; a line that only counts as unchanged ("0 %") is marked OK too.
bool isInTolerance(const QString &porc, const Rule &rule)
{
    const QString number = decimalsText(withoutBlanks(QString(porc).remove(u'%')), 4);
    return judged(leadingNumber(number), rule) == Verdict::Pass;
}

void setFields(Panel &panel, qsizetype place, const OutputLine &line, const RailInput &input)
{
    const RailRow &row = line.volts.row;
    const auto field = [&](const char16_t *name) -> Field & {
        return panel.fields[u"%1(%2)"_s.arg(QStringView(name)).arg(place)];
    };
    const bool isRead = !input.reply.isEmpty();
    const bool isOk = isInTolerance(row.porc, input.rule);
    const Colour back = isRead && !isOk ? Colour::OutOfTolerance : Colour::Neutral;
    field(u"SAIDA") = {.text = line.name()};
    field(u"MALHA_NOME") = {.text = row.malha};
    field(u"LEITURA_V") = {.text = row.leitura, .back = back};
    field(u"LEITURA_A") = {.text = line.current, .visible = !line.current.isEmpty()};
    field(u"REF") = {.text = row.ref};
    field(u"PORC") = {.text = row.porc, .back = back};
    field(u"OK") = {.fore = line.volts.verdict == Verdict::Pass ? Colour::InTolerance : Colour::Text,
                    .visible = isRead && isOk};
    field(u"NO") = {.fore = Colour::Fault, .visible = isRead && !isOk};
}

QList<std::pair<QString, QString>> cellsOf(const OutputLine &line)
{
    const RailRow &row = line.volts.row;
    return {{u"Orig"_s, line.name()},       {u"Malha"_s, row.malha}, {u"Leitura"_s, row.leitura},
            {u"LEITURA_A"_s, line.current}, {u"REF"_s, row.ref},     {u"PORC"_s, row.porc}};
}

RailReading readLines(const RailScreenTraits &traits, const RailInput &input, const QList<RailRow> &rows)
{
    const QList<EvaluatedRail> rails = evaluatedRails(traits, input, rows);
    QList<OutputLine> lines = linesOf(rails);
    if (!input.reply.isEmpty())
        addCurrents(lines, rails);
    QList<EvaluatedRail> shown;
    std::ranges::transform(lines, std::back_inserter(shown), &OutputLine::volts);

    RailReading reading = railReading(traits, input, rails);
    Panel &panel = reading.panel;
    addRails(panel, shown, input.cut);
    for (qsizetype place = 0; place < lines.size(); ++place) {
        setFields(panel, place, lines.at(place), input);
        panel.rows[place].cells = cellsOf(lines.at(place));
    }
    const QString marks = u"\n "_s + kTimedOut + u' ' + caption(u"Sem Medição", input.language);
    panel.fields[u"lbVar"_s].text = generationNote(input.model, input.language) + marks;
    reading.shown = rowsOf(shown);
    return reading;
}

} // namespace

const RailScreenTraits &pmuTraits()
{
    static constexpr RailScreenTraits kTraits{
        .name = "PMU"_L1,
        .code = "18"_L1,
        .title = "PMU"_L1,
        .rules = {RailRules::Key::Orig, "mABuck0"_L1, kGraphics, false, kTimedOut},
        .loadOrder = RailOrder::ModeloOrig,
        .malhaOrder = RailOrder::ModeloOrig,
        .icOrder = RailOrder::ModeloOrig,
        .voltDecimals = Combo::PmuVolts,
        .milliDecimals = Combo::PmuMilli,
        .kinds = kKinds,
        .readButton = "btExecutaLeitura"_L1,
        .restingControls = kResting,
        .read = readLines,
    };
    return kTraits;
}
