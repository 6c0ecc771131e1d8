#include "comparison.h"

#include "catalogue.h"
#include "json.h"
#include "terminal.h"

#include <QJsonArray>

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// A kind of row for scripts and for people.
struct KindWords
{
    QLatin1StringView word;
    QStringView sign;
};

const KindWords &wordsOf(DifferenceRow::Kind kind)
{
    static constexpr std::array kWords = {KindWords{"same"_L1, u" "},  KindWords{"masked"_L1, u" "},
                                          KindWords{"close"_L1, u"≈"}, KindWords{"changed"_L1, u"≠"},
                                          KindWords{"live"_L1, u"+"},  KindWords{"recorded"_L1, u"−"}};
    return kWords.at(static_cast<std::size_t>(kind));
}

/// Told are also the lines that the tolerance lets pass.
bool isTold(const DifferenceRow &row)
{
    return row.differs() || row.kind == DifferenceRow::Kind::Close;
}

QJsonValue integrityValue(const std::optional<Integrity> &integrity)
{
    static constexpr std::array kWords = {"unverified"_L1, "intact"_L1, "changed"_L1};
    return integrity ? QJsonValue(kWords.at(static_cast<std::size_t>(*integrity))) : QJsonValue();
}

QJsonObject lineObject(const DifferenceRow &row)
{
    const auto numberOf = [](int number) { return number > 0 ? QJsonValue(number) : QJsonValue(); };
    return {{u"kind"_s, wordsOf(row.kind).word.toString()},    {u"live"_s, row.live},
            {u"liveLine"_s, numberOf(row.liveNumber)},         {u"recorded"_s, row.recorded},
            {u"recordedLine"_s, numberOf(row.recordedNumber)}, {u"change"_s, row.change}};
}

QString table(const Comparison &comparison)
{
    const auto text = [&](QStringView key) { return caption(key, comparison.language); };
    QList<QStringList> rows{{u" "_s, text(u"Leitura do dispositivo"), text(u"Gravação"), text(u"Desvio")}};
    for (const DifferenceRow &row : comparison.difference.rows)
        if (isTold(row))
            rows.append({wordsOf(row.kind).sign.toString(), row.live, row.recorded, row.change});
    const QList<Qt::Alignment> alignments(4, Qt::AlignLeft);
    return rows.size() > 1 ? u'\n' + aligned(rows, alignments) : QString();
}

} // namespace

QJsonObject toJson(const Comparison &comparison)
{
    const ReplyDifference &found = comparison.difference;
    QJsonArray lines;
    for (const DifferenceRow &row : found.rows)
        if (isTold(row))
            lines.append(lineObject(row));
    const auto first = found.first();
    const QJsonObject summary{{u"text"_s, comparison.summary},
                              {u"differing"_s, found.differing},
                              {u"close"_s, found.close},
                              {u"first"_s, first ? QJsonValue(found.rows[*first].what()) : QJsonValue()}};
    return {{u"screen"_s, u"Master"_s},
            {u"model"_s, comparison.model},
            {u"language"_s, static_cast<int>(comparison.language)},
            {u"command"_s, comparison.command},
            {u"verdict"_s, word(found.verdict)},
            {u"recording"_s, comparison.integrity.has_value()},
            {u"integrity"_s, integrityValue(comparison.integrity)},
            {u"cut"_s, comparison.cut},
            {u"mark"_s, comparison.mark},
            {u"summary"_s, summary},
            {u"lines"_s, lines},
            {u"messages"_s, messagesArray(comparison.messages)}};
}

QString readable(const Comparison &comparison)
{
    const auto text = [&](QStringView key) { return caption(key, comparison.language); };
    const QString mark = text(u"Auto Comparador TOOL") + ": "_L1 + text(comparison.mark ? u"Sim" : u"Não");
    const QString head = comparison.model + u": "_s + comparison.command + u'\n';
    const bool isChanged = comparison.integrity == Integrity::Changed;
    const QString warning = isChanged ? "! "_L1 + text(u"Gravação alterada fora do programa") + u'\n' : QString();
    return head + table(comparison) + u'\n' + warning + comparison.summary + u'\n' + mark + u'\n' +
           verdictText(comparison.difference.verdict, comparison.language, colourWanted()) + u'\n';
}
