#include "replydifference.h"

#include "alignment.h"
#include "numberchange.h"

#include <QHash>

#include <algorithm>
#include <cmath>

namespace {

constexpr qsizetype kNone = -1;

/// Which recorded line a live line stands beside.
struct Partners
{
    QList<ReplyLine> live;
    QList<ReplyLine> recorded;
    QList<int> liveLabels = {};
    QList<int> recordedLabels = {};
    QList<qsizetype> ofLive = {};
    QList<qsizetype> ofRecorded = {};

    void join(qsizetype one, qsizetype other)
    {
        ofLive[one] = other;
        ofRecorded[other] = one;
    }
};

/// A number for each text, the same for the same; 0 for none.
class Numbering
{
public:
    int operator()(const QString &text)
    {
        if (text.isEmpty())
            return 0;
        int &number = m_known[text];
        if (number == 0)
            number = static_cast<int>(m_known.size());
        return number;
    }

    QList<int> of(const QList<ReplyLine> &lines, QString ReplyLine::*part)
    {
        QList<int> numbers;
        numbers.reserve(lines.size());
        m_known.reserve(m_known.size() + lines.size());
        for (const ReplyLine &line : lines)
            numbers.append((*this)(line.*part));
        return numbers;
    }

private:
    QHash<QString, int> m_known;
};

/// A line that has a label and no partner yet.
struct Lonely
{
    int label;
    qsizetype place;
    auto operator<=>(const Lonely &) const = default;
};

QList<Lonely> lonely(const QList<int> &labels, const QList<qsizetype> &partners, qsizetype begin, qsizetype end)
{
    QList<Lonely> found;
    for (qsizetype place = begin; place < end; ++place)
        if (partners[place] == kNone && labels[place] != 0)
            found.append({labels[place], place});
    std::ranges::sort(found);
    return found;
}

/// Lines of one label that are still alone, joined in their order.
void joinLabels(Partners &partners, qsizetype liveBegin, qsizetype liveEnd, qsizetype begin, qsizetype end)
{
    const QList<Lonely> live = lonely(partners.liveLabels, partners.ofLive, liveBegin, liveEnd);
    const QList<Lonely> recorded = lonely(partners.recordedLabels, partners.ofRecorded, begin, end);
    auto one = live.begin();
    auto other = recorded.begin();
    while (one != live.end() && other != recorded.end()) {
        if (one->label == other->label)
            partners.join((one++)->place, (other++)->place);
        else if (one->label < other->label)
            ++one;
        else
            ++other;
    }
}

bool isLonelyText(const ReplyLine &line, qsizetype partner)
{
    return partner == kNone && line.label.isEmpty();
}

/// Texts of one gap that stand opposite each other.
void joinTexts(Partners &partners, qsizetype liveBegin, qsizetype liveEnd, qsizetype begin, qsizetype end)
{
    for (qsizetype one = liveBegin, other = begin; one < liveEnd; ++one) {
        if (!isLonelyText(partners.live[one], partners.ofLive[one]))
            continue;
        while (other < end && !isLonelyText(partners.recorded[other], partners.ofRecorded[other]))
            ++other;
        if (other == end)
            return;
        partners.join(one, other++);
    }
}

using Join = void (*)(Partners &, qsizetype, qsizetype, qsizetype, qsizetype);

/// Does the joining in every gap between the lines that run alike.
void joinInGaps(Partners &partners, const Pairs &alike, Join join)
{
    qsizetype one = 0;
    qsizetype other = 0;
    for (const auto &[live, recorded] : alike) {
        if (one < live && other < recorded)
            join(partners, one, live, other, recorded);
        one = live + 1;
        other = recorded + 1;
    }
    join(partners, one, partners.live.size(), other, partners.recorded.size());
}

/// The last line of a cut reply may be cut in the middle of a number.
QString judgedPart(const DifferenceInput &input)
{
    return input.cut ? input.live.left(input.live.lastIndexOf(u'\n') + 1) : input.live;
}

Partners partnersOf(const DifferenceInput &input)
{
    Partners partners{.live = replyLines(judgedPart(input), input.masks),
                      .recorded = replyLines(input.recorded, input.masks)};
    partners.ofLive.fill(kNone, partners.live.size());
    partners.ofRecorded.fill(kNone, partners.recorded.size());
    Numbering labels;
    partners.liveLabels = labels.of(partners.live, &ReplyLine::label);
    partners.recordedLabels = labels.of(partners.recorded, &ReplyLine::label);
    Numbering texts;
    const QList<int> live = texts.of(partners.live, &ReplyLine::compared);
    const auto alike = aligned(live, texts.of(partners.recorded, &ReplyLine::compared));
    for (const auto &[one, other] : alike)
        partners.join(one, other);
    joinInGaps(partners, alike, joinLabels);
    joinLabels(partners, 0, partners.live.size(), 0, partners.recorded.size());
    joinInGaps(partners, alike, joinTexts);
    return partners;
}

DifferenceRow::Kind kindOf(const QList<NumberChange> &changes, double tolerance)
{
    const auto isClose = [tolerance](const NumberChange &change) {
        return change.share && std::abs(*change.share) <= tolerance;
    };
    const bool close = !changes.isEmpty() && std::ranges::all_of(changes, isClose);
    return close ? DifferenceRow::Kind::Close : DifferenceRow::Kind::Changed;
}

DifferenceRow rowOf(const ReplyLine &live, const ReplyLine &recorded, double tolerance)
{
    DifferenceRow row{
        .liveNumber = live.number, .recordedNumber = recorded.number, .live = live.text, .recorded = recorded.text};
    if (live.compared == recorded.compared) {
        row.kind = live.masks ? DifferenceRow::Kind::Masked : DifferenceRow::Kind::Same;
        return row;
    }
    const QList<NumberChange> changes = numberChanges(live.text, recorded.text);
    QStringList texts;
    for (const NumberChange &change : changes)
        texts.append(change.text);
    row.change = texts.join(QStringLiteral("; "));
    row.kind = kindOf(changes, tolerance);
    return row;
}

/// Live lines in their order; a recorded line that stands alone follows the one that it follows in the recording.
QList<DifferenceRow> rowsOf(const Partners &partners, double tolerance)
{
    QList<DifferenceRow> rows;
    rows.reserve(std::max(partners.live.size(), partners.recorded.size()));
    qsizetype told = 0;
    const auto tellAlone = [&](qsizetype end) {
        for (; told < end; ++told) {
            if (partners.ofRecorded[told] == kNone) {
                rows.append({.kind = DifferenceRow::Kind::OnlyRecorded,
                             .recordedNumber = partners.recorded[told].number,
                             .recorded = partners.recorded[told].text});
            }
        }
    };
    for (qsizetype one = 0; one < partners.live.size(); ++one) {
        const ReplyLine &line = partners.live[one];
        const qsizetype other = partners.ofLive[one];
        if (other == kNone) {
            rows.append({.kind = DifferenceRow::Kind::OnlyLive, .liveNumber = line.number, .live = line.text});
            continue;
        }
        tellAlone(other);
        rows.append(rowOf(line, partners.recorded[other], tolerance));
    }
    tellAlone(partners.recorded.size());
    return rows;
}

Verdict verdictOf(const ReplyDifference &difference, bool cut)
{
    const auto isWrong = [](const DifferenceRow &row) {
        return row.differs() && row.kind != DifferenceRow::Kind::OnlyRecorded;
    };
    if (cut) // what only the recording holds may still have been to come
        return std::ranges::any_of(difference.rows, isWrong) ? Verdict::Fail : Verdict::Incomplete;
    return difference.differing > 0 ? Verdict::Fail : Verdict::Pass;
}

} // namespace

QString DifferenceRow::what() const
{
    constexpr qsizetype kLongest = 60;
    const QString line = (live.isEmpty() ? recorded : live).simplified();
    const QString label = labelOf(line);
    const QString &told = label.isEmpty() ? line : label;
    return told.size() > kLongest ? told.left(kLongest) + u'…' : told;
}

std::optional<qsizetype> ReplyDifference::first() const
{
    return next(-1);
}

std::optional<qsizetype> ReplyDifference::next(qsizetype row) const
{
    for (qsizetype at = row + 1; at < rows.size(); ++at)
        if (rows[at].differs())
            return at;
    return std::nullopt;
}

std::optional<qsizetype> ReplyDifference::previous(qsizetype row) const
{
    for (qsizetype at = std::min(row, rows.size()) - 1; at >= 0; --at)
        if (rows[at].differs())
            return at;
    return std::nullopt;
}

ReplyDifference difference(const DifferenceInput &input)
{
    if (input.live.isEmpty() || input.recorded.isEmpty())
        return {};
    ReplyDifference result{.rows = rowsOf(partnersOf(input), input.tolerance)};
    result.differing = static_cast<int>(std::ranges::count_if(result.rows, &DifferenceRow::differs));
    result.close = static_cast<int>(std::ranges::count(result.rows, DifferenceRow::Kind::Close, &DifferenceRow::kind));
    result.verdict = verdictOf(result, input.cut);
    return result;
}
