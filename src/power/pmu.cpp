#include "pmu.h"

#include "deviationmeter.h"
#include "plainlabel.h"
#include "pmuscreen.h"
#include "tableexport.h"
#include "theme.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QScrollArea>

using namespace Qt::StringLiterals;

static constexpr int kToleranceWidth = 64;
static constexpr int kLeastReading = 88;
static constexpr int kLineHeight = 24;

/// The columns from left to right. The bar and the marks stand without a caption.
enum Column
{
    Output,
    Net,
    Volts,
    Current,
    Reference,
    Bar,
    Deviation,
    Mark
};

static constexpr std::array kTable = {
    GridColumn{u"Orig", u"Saída", ColumnKind::Name},          GridColumn{u"Malha", u"Malha", ColumnKind::Name},
    GridColumn{u"Leitura", u"Leitura", ColumnKind::Number},   GridColumn{u"LEITURA_A", u"Corrente", ColumnKind::Number},
    GridColumn{u"REF", u"Referência", ColumnKind::Number},    GridColumn{u"PORC", u"Desvio", ColumnKind::Deviation},
    GridColumn{u"Verdict", u"Veredito", ColumnKind::Verdict},
};

static QString element(QLatin1StringView array, qsizetype index)
{
    return u"%1(%2)"_s.arg(array).arg(index);
}

PMU::PMU(Session &session, QWidget *parent) : RailForm(std::make_unique<PMUScreen>(session), parent), m_table(kTable)
{
    m_btVCore = named(new QPushButton, u"btVCore"_s);
    for (int i = 0; i < 2; ++i)
        m_botao[static_cast<std::size_t>(i)] = named(new QPushButton, u"Botao%1"_s.arg(i + 1));
    m_btExecutaLeitura = readButton(u"btExecutaLeitura"_s);
    layOut({.note = u"lbVar"_s, .buttons = {m_btExecutaLeitura}, .choices = {controls(), nullptr}, .body = lines()});
    painter().setRows(&m_table);
    m_export = new TableExport(*m_area, m_table);
    connectControls();
}

QWidget *PMU::controls()
{
    m_lbTolerancia = named(new PlainLabel, u"lbTolerancia"_s);
    m_porcTolerancia = named(new QLineEdit, u"PorcTolerancia"_s);
    m_porcTolerancia->setPlaceholderText(u"10"_s);
    m_porcTolerancia->setFixedWidth(kToleranceWidth);
    m_porcTolerancia->setAlignment(Qt::AlignRight);
    static const QRegularExpression kPercent(u"\\d{0,3}([.,]\\d{0,2})?"_s);
    m_porcTolerancia->setValidator(new QRegularExpressionValidator(kPercent, m_porcTolerancia));
    auto *frame = named(new QWidget, u"FrameControle"_s);
    auto *row = controlRow(frame);
    row->addWidget(kinds({m_btVCore, m_botao[0], m_botao[1]}, u"FrameSelecoes"_s));
    row->addSpacing(Spacing::control);
    row->addWidget(m_lbTolerancia);
    row->addWidget(m_porcTolerancia);
    row->addSpacing(Spacing::control);
    row->addWidget(decimals());
    return frame;
}

/// The lines are as wide as they need to be: a name is not to stand far from its values.
QWidget *PMU::lines()
{
    auto *sheet = new QWidget;
    sheet->setBackgroundRole(QPalette::Base);
    sheet->setAutoFillBackground(true);
    m_grid = new QGridLayout(sheet);
    m_grid->setContentsMargins(Spacing::control, Spacing::unit, Spacing::control, Spacing::unit);
    m_grid->setHorizontalSpacing(Spacing::group);
    m_grid->setVerticalSpacing(2);
    m_grid->setColumnStretch(Mark + 1, 1);
    m_grid->setColumnMinimumWidth(Volts, kLeastReading);
    m_grid->setColumnMinimumWidth(Current, kLeastReading);
    for (std::size_t column = 0; column < m_captions.size(); ++column) {
        m_captions[column] = new PlainLabel;
        m_captions[column]->setFont(textFont(TextSize::Small));
        const auto side = column < Volts ? Qt::AlignLeft : Qt::AlignRight;
        m_grid->addWidget(m_captions[column], 0, static_cast<int>(column), side);
    }
    m_grid->addWidget(m_empty = named(new PlainLabel, u"lbVazio"_s), 1, 0, 1, Mark + 2);
    m_area = named(new QScrollArea, u"FrameLinhas"_s);
    m_area->setWidgetResizable(true);
    m_area->setWidget(sheet);
    return m_area;
}

/// A cell that the panel may show and hide stands in a holder, which comes and goes with its line.
void PMU::addLine()
{
    const qsizetype place = m_lines.size();
    const auto label = [place](QLatin1StringView array) { return named(new PlainLabel, element(array, place)); };
    const auto number = [&label](QLatin1StringView array) {
        QLabel *cell = label(array);
        cell->setFont(tabularFont());
        cell->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        cell->setContentsMargins(Spacing::unit, 0, Spacing::unit, 0);
        return cell;
    };
    const auto held = [](const QList<QWidget *> &cells) {
        auto *holder = new QWidget;
        auto *row = controlRow(holder);
        for (QWidget *cell : cells)
            row->addWidget(cell);
        return holder;
    };
    QLabel *ok = label("OK"_L1);
    QLabel *no = label("NO"_L1);
    ok->setText(u"✓ OK"_s);
    no->setText(u"✗ NO"_s);
    Line line{.output = label("SAIDA"_L1), .meter = new DeviationMeter};
    line.cells = {
        line.output, label("MALHA_NOME"_L1), number("LEITURA_V"_L1), held({number("LEITURA_A"_L1)}), number("REF"_L1),
        line.meter,  number("PORC"_L1),      held({ok, no})};
    for (QWidget *cell : line.cells)
        cell->setMinimumHeight(kLineHeight);
    const int row = static_cast<int>(place) + 2; // the captions and the empty text stand above
    for (int column = 0; column < line.cells.size(); ++column)
        m_grid->addWidget(line.cells.at(column), row, column);
    m_grid->setRowStretch(row, 0);
    m_grid->setRowStretch(row + 1, 1);
    m_lines.append(line);
}

void PMU::connectControls()
{
    auto &pmu = static_cast<PMUScreen &>(screen());
    connect(m_btVCore, &QPushButton::clicked, &pmu, &PMUScreen::btVCore_Click);
    connect(m_botao[0], &QPushButton::clicked, &pmu, &PMUScreen::Botao1_Click);
    connect(m_botao[1], &QPushButton::clicked, &pmu, &PMUScreen::Botao2_Click);
    connect(m_btExecutaLeitura, &QPushButton::clicked, &pmu, &PMUScreen::btExecutaLeitura_Click);
    connect(m_export, &TableExport::exportFailed, this, &PMU::tellUnwritten);
    connect(m_porcTolerancia, &QLineEdit::textChanged, &pmu, &PMUScreen::PorcTolerancia_Change);
    connect(m_porcTolerancia, &QLineEdit::editingFinished, &pmu, &PMUScreen::PorcTolerancia_LostFocus);
}

void PMU::Traducao_Form()
{
    RailForm::Traducao_Form();
    m_btVCore->setAccessibleName(text(u"VCore"));
    m_botao[0]->setAccessibleName(text(u"Bucks"));
    m_botao[1]->setAccessibleName(text(u"LDOs"));
    setDecimalsCaption(text(u"Decimais") + ": ( V / mA )"_L1);
    m_lbTolerancia->setText(text(u"Tolerância") + " (%)"_L1);
    m_porcTolerancia->setAccessibleName(m_lbTolerancia->text());
    m_area->setAccessibleName(text(u"PMU"));
    m_table.setLanguage(language());
    m_export->setLanguage(language());
    const std::array captions = {text(u"Saída"),
                                 text(u"Malha"),
                                 text(u"Leitura") + ": (V)"_L1,
                                 text(u"Leitura") + ": (mA)"_L1,
                                 text(u"Referência"),
                                 QString(),
                                 text(u"Desvio")};
    for (std::size_t column = 0; column < captions.size(); ++column)
        m_captions[column]->setText(captions[column]);
}

void PMU::paintPanel()
{
    const Panel &panel = screen().panel();
    while (m_lines.size() < panel.rows.size())
        addLine();
    for (qsizetype place = 0; place < m_lines.size(); ++place) {
        for (QWidget *cell : m_lines.at(place).cells)
            cell->setVisible(place < panel.rows.size());
        m_lines.at(place).meter->setRow(panel.rows.value(place));
    }
    const QString model = rails().session().model();
    m_empty->setText(model.isEmpty() ? text(u"DICA_MODELO") : text(u"DICA_SEM_LINHAS").arg(model));
    m_empty->setVisible(panel.rows.isEmpty());
    m_export->setName(u"%1 %2"_s.arg(panel.screen, model));
    RailForm::paintPanel();
}

void PMU::goTo(const QString &what)
{
    RailForm::goTo(what);
    const QList<Row> &rows = screen().panel().rows;
    for (qsizetype place = 0; place < rows.size(); ++place)
        if (rows.at(place).cell(u"Malha") == what)
            m_area->ensureWidgetVisible(m_lines.at(place).output);
}
