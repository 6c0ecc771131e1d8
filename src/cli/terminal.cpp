#include "terminal.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cstdio>
#include <unistd.h>

using namespace Qt::StringLiterals;

/// The lines of a box one after the other, each closed like a sentence.
static QString joined(const QStringList &lines)
{
    QString text;
    for (const QString &line : lines) {
        const QString next = line.simplified();
        if (next.isEmpty())
            continue;
        if (!text.isEmpty())
            text += ".:!?;,"_L1.contains(text.back()) ? u" "_s : u". "_s;
        text += next;
    }
    return text;
}

static QString sentence(const Notice &notice, Language language)
{
    if (notice.key.isEmpty())
        return joined(notice.arguments.join(": "_L1).split(u'\n'));
    const auto shown = message(notice, language);
    if (!shown)
        return notice.key;
    const QString text = joined(shown->lines);
    const QString title = shown->title.trimmed();
    return title.isEmpty() || title == "Tavimo Prelt"_L1 ? text : title + ": "_L1 + text;
}

QString oneLine(const Trouble &trouble, Language language)
{
    QStringList sentences{sentence(trouble.what, language)};
    for (const Notice &remedy : trouble.remedies)
        sentences.append(sentence(remedy, language));
    return joined(sentences);
}

static void print(FILE *stream, const QString &text)
{
    QFile file;
    if (file.open(stream, QIODevice::WriteOnly))
        file.write(text.toUtf8());
}

void printOut(const QString &text)
{
    print(stdout, text);
}

void printError(const QString &text)
{
    print(stderr, text + u'\n');
}

bool colourWanted()
{
    return isatty(STDOUT_FILENO) != 0 && qEnvironmentVariableIsEmpty("NO_COLOR");
}

static QString padded(const QString &cell, qsizetype width, Qt::Alignment alignment)
{
    return alignment & Qt::AlignRight ? cell.rightJustified(width) : cell.leftJustified(width);
}

QString aligned(const QList<QStringList> &rows, const QList<Qt::Alignment> &alignments)
{
    QList<qsizetype> widths(alignments.size(), 0);
    for (const QStringList &row : rows)
        for (qsizetype column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], row[column].size());
    QString text;
    for (const QStringList &row : rows) {
        QStringList cells;
        for (qsizetype column = 0; column < row.size(); ++column)
            cells.append(padded(row[column], widths[column], alignments[column]));
        QString line = cells.join("  "_L1);
        while (line.endsWith(u' '))
            line.chop(1);
        text += line + u'\n';
    }
    return text;
}

namespace {

/// How a verdict looks in a terminal: a mark, the caption keys of its word and of its count, and an ANSI colour.
struct VerdictLook
{
    QStringView mark;
    QStringView key;
    QStringView countKey;
    QLatin1StringView colour;
};

const VerdictLook &look(Verdict verdict)
{
    static constexpr std::array<VerdictLook, 4> kLooks = {{{u" ", u"Sem julgamento", u"", ""_L1},
                                                           {u"✓", u"Aprovado", u"%1 aprovados", "32"_L1},
                                                           {u"?", u"Incompleto", u"%1 sem medição", "33"_L1},
                                                           {u"✗", u"Falha", u"%1 com falha", "31"_L1}}};
    return kLooks.at(static_cast<std::size_t>(verdict));
}

QString coloured(const QString &text, Verdict verdict, bool colour)
{
    const QLatin1StringView code = look(verdict).colour;
    return !colour || code.isEmpty() ? text : u"\x1b["_s + code + u'm' + text + u"\x1b[0m"_s;
}

/// A column of the grid and the caption over it; one that no row has is left out.
struct GridColumn
{
    QStringView name;
    QStringView key;
    Qt::AlignmentFlag alignment;
};

constexpr std::array<GridColumn, 9> kColumns = {{{u"Orig", u"Saída", Qt::AlignLeft},
                                                 {u"Malha", u"Malha", Qt::AlignLeft},
                                                 {u"Ci", u"IC", Qt::AlignLeft},
                                                 {u"Leitura", u"Leitura", Qt::AlignRight},
                                                 {u"REF", u"Referência", Qt::AlignRight},
                                                 {u"PORC", u"Desvio", Qt::AlignRight},
                                                 {u"G1", u"G1", Qt::AlignRight},
                                                 {u"G2", u"G2", Qt::AlignRight},
                                                 {u"G3", u"G3", Qt::AlignRight}}};

bool isUsed(const Panel &panel, const GridColumn &column)
{
    return std::ranges::any_of(panel.rows, [&](const Row &row) { return !row.cell(column.name).isEmpty(); });
}

QString heading(const GridColumn &column, Language language)
{
    const QString text = caption(column.key, language);
    return text.isEmpty() ? column.name.toString() : text;
}

QString grid(const Panel &panel, Language language, bool colour)
{
    QList<GridColumn> columns;
    std::ranges::copy_if(kColumns, std::back_inserter(columns),
                         [&](const auto &column) { return isUsed(panel, column); });
    QList<QStringList> rows{{QString()}};
    QList<Qt::Alignment> alignments{Qt::AlignLeft};
    for (const GridColumn &column : columns) {
        rows.front().append(heading(column, language));
        alignments.append(column.alignment);
    }
    for (const Row &row : panel.rows) {
        QStringList cells{look(row.verdict).mark.toString()};
        for (const GridColumn &column : columns)
            cells.append(row.cell(column.name));
        rows.append(cells);
    }
    QStringList lines = aligned(rows, alignments).split(u'\n', Qt::SkipEmptyParts);
    for (qsizetype i = 0; i < panel.rows.size(); ++i)
        lines[i + 1] = coloured(lines[i + 1], panel.rows[i].verdict, colour);
    return lines.join(u'\n') + u'\n';
}

qsizetype countOf(const Panel &panel, Verdict verdict)
{
    return std::ranges::count(panel.judgements, verdict, &Judgement::verdict);
}

QString summary(const Panel &panel, Language language)
{
    QStringList parts;
    for (const Verdict verdict : {Verdict::Fail, Verdict::Incomplete, Verdict::Pass})
        if (const qsizetype count = countOf(panel, verdict))
            parts.append(caption(look(verdict).countKey, language).arg(count));
    return parts.join(", "_L1);
}

} // namespace

QString readable(const Panel &panel, Language language, bool colour)
{
    const QString verdict = coloured(caption(look(panel.verdict).key, language).toUpper(), panel.verdict, colour);
    QString text = panel.title + u'\n';
    if (!panel.rows.isEmpty())
        text += u'\n' + grid(panel, language, colour);
    for (const QString &line : panel.lines)
        text += line + u'\n';
    if (const auto note = panel.fields.value(u"lbVar"_s).text; note && !panel.rows.isEmpty())
        text += u'\n' + *note + u'\n';
    const QString counts = summary(panel, language);
    return text + u'\n' + verdict + (counts.isEmpty() ? QString() : u" ("_s + counts + u')') + u'\n';
}
