#include "terminal.h"

#include "visibletext.h"

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
    return printable(joined(sentences));
}

static void print(FILE *stream, const QString &text)
{
    QFile file;
    if (file.open(stream, QIODevice::WriteOnly))
        file.write(text.toUtf8());
    std::fflush(stream); // what is printed stays printed, whatever the next step meets
}

void printOut(const QString &text)
{
    print(stdout, text);
}

void printError(const QString &text)
{
    print(stderr, text + u'\n');
}

bool printsToTerminal()
{
    return isatty(STDOUT_FILENO) != 0;
}

bool colourWanted()
{
    return printsToTerminal() && qEnvironmentVariableIsEmpty("NO_COLOR");
}

static QString padded(const QString &cell, qsizetype width, Qt::Alignment alignment)
{
    return alignment & Qt::AlignRight ? cell.rightJustified(width) : cell.leftJustified(width);
}

QString printable(const QString &text)
{
    QString line = visibleText(text);
    return line.replace(u'\n', u' ').replace(u'\t', u' ');
}

static QStringList printable(QStringList row)
{
    for (QString &cell : row)
        cell = printable(cell);
    return row;
}

QString aligned(QList<QStringList> rows, const QList<Qt::Alignment> &alignments)
{
    std::ranges::transform(rows, rows.begin(), [](const QStringList &row) { return printable(row); });
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

constexpr std::array<GridColumn, 15> kColumns = {{{u"Dado", u"Dados", Qt::AlignLeft},
                                                  {u"Barramento", u"Barramento", Qt::AlignLeft},
                                                  {u"Endereço", u"Endereço", Qt::AlignLeft},
                                                  {u"Componente", u"Componente", Qt::AlignLeft},
                                                  {u"Orig", u"Saída", Qt::AlignLeft},
                                                  {u"Malha", u"Malha", Qt::AlignLeft},
                                                  {u"Ci", u"IC", Qt::AlignLeft},
                                                  {u"Leitura", u"Leitura", Qt::AlignRight},
                                                  {u"LEITURA_A", u"Corrente", Qt::AlignRight},
                                                  {u"REF", u"Referência", Qt::AlignRight},
                                                  {u"PORC", u"Desvio", Qt::AlignRight},
                                                  {u"Falha", u"Falhas i2c", Qt::AlignLeft},
                                                  {u"G1", u"G1", Qt::AlignRight},
                                                  {u"G2", u"G2", Qt::AlignRight},
                                                  {u"G3", u"G3", Qt::AlignRight}}};

bool isUsed(const QList<Row> &rows, const GridColumn &column)
{
    return std::ranges::any_of(rows, [&](const Row &row) { return !row.cell(column.name).isEmpty(); });
}

QString heading(const GridColumn &column, Language language)
{
    const QString text = caption(column.key, language);
    return text.isEmpty() ? column.name.toString() : text;
}

QString grid(const QList<Row> &shown, Language language, bool colour)
{
    QList<GridColumn> columns;
    std::ranges::copy_if(kColumns, std::back_inserter(columns),
                         [&](const auto &column) { return isUsed(shown, column); });
    QList<QStringList> rows{{QString()}};
    QList<Qt::Alignment> alignments{Qt::AlignLeft};
    for (const GridColumn &column : columns) {
        rows.front().append(heading(column, language));
        alignments.append(column.alignment);
    }
    for (const Row &row : shown) {
        QStringList cells{look(row.verdict).mark.toString()};
        for (const GridColumn &column : columns)
            cells.append(row.cell(column.name));
        rows.append(cells);
    }
    QStringList lines = aligned(rows, alignments).split(u'\n', Qt::SkipEmptyParts);
    for (qsizetype i = 0; i < shown.size(); ++i)
        lines[i + 1] = coloured(lines[i + 1], shown[i].verdict, colour);
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
            parts.append(countCaption(look(verdict).countKey, count, language));
    return parts.join(", "_L1);
}

/// Where there is no grid, what gave no reading has no line of its own.
QString unmeasured(const Panel &panel)
{
    QString text;
    for (const Judgement &judgement : panel.judgements)
        if (judgement.verdict == Verdict::Incomplete)
            text += u"   %1: %2\n"_s.arg(printable(judgement.what), printable(judgement.reading));
    return text;
}

/// The footnotes of the screens, as far as a reading set them.
QString notes(const Panel &panel)
{
    static constexpr std::array<QStringView, 3> kNotes = {u"lbVar", u"lbVarInfo", u"lbStatus2"};
    QString text;
    for (const QStringView name : kNotes) {
        const Field field = panel.fields.value(name.toString());
        const QString note = field.visible.value_or(true) ? field.text.value_or(QString()) : QString();
        if (!note.isEmpty())
            text += u'\n' + note + u'\n';
    }
    return text;
}

} // namespace

QString verdictText(Verdict verdict, Language language, bool colour)
{
    return coloured(caption(look(verdict).key, language).toUpper(), verdict, colour);
}

QString readable(const Panel &panel, Language language, bool colour)
{
    const QString verdict = verdictText(panel.verdict, language, colour);
    QString text = printable(panel.title) + u'\n';
    const QList<Row> &rows = panel.rows.isEmpty() ? panel.facts : panel.rows;
    if (!rows.isEmpty())
        text += u'\n' + grid(rows, language, colour);
    for (const QString &line : panel.lines)
        text += printable(line) + u'\n';
    if (rows.isEmpty())
        text += unmeasured(panel);
    else
        text += notes(panel);
    const QString counts = summary(panel, language);
    return text + u'\n' + verdict + (counts.isEmpty() ? QString() : u" ("_s + counts + u')') + u'\n';
}
