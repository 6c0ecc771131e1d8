#include "i2c.h"

#include "chipreading.h"
#include "i2cscreen.h"
#include "icons.h"
#include "linelist.h"
#include "marklabel.h"
#include "panelgrid.h"
#include "plainlabel.h"
#include "theme.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

static constexpr std::array kColumns = {
    GridColumn{u"Barramento", u"Barramento", ColumnKind::Name}, GridColumn{u"Endereço", u"Endereço", ColumnKind::Name},
    GridColumn{u"Componente", u"Componente", ColumnKind::Name}, GridColumn{u"Leitura", u"Leitura", ColumnKind::Text},
    GridColumn{u"Veredito", u"Veredito", ColumnKind::Verdict},  GridColumn{u"Falha", u"Falhas i2c", ColumnKind::Text},
};

static constexpr int kSideWidth = 300;

I2C::I2C(Session &session, QWidget *parent)
    : CheckForm(std::make_unique<I2CScreen>(session), parent),
      m_buses(static_cast<I2CScreen &>(screen())),
      m_rows(kColumns)
{
    m_btAutoTeste = named(new QPushButton, u"btAutoTeste"_s);
    m_btAutoTeste->setProperty("primary", true);
    m_btConhecido = named(new QPushButton, u"btConhecido"_s);
    m_btPdf = named(new QPushButton, u"btPdf"_s);
    layOut({.note = u"lbAguarde"_s,
            .buttons = {m_btConhecido, m_btPdf, m_btAutoTeste},
            .choices = {buttons(), nullptr},
            .body = body()});
    painter().setRows(&m_rows);
    connectControls();
}

QWidget *I2C::buttons()
{
    auto *frame = new QWidget;
    auto *row = controlRow(frame);
    for (int bus = 0; bus < kBuses; ++bus)
        row->addWidget(m_btI2C[static_cast<std::size_t>(bus)] = testButton(element(u"btI2C", bus)));
    return frame;
}

QWidget *I2C::body()
{
    auto *frame = new QWidget;
    auto *row = controlRow(frame);
    row->setSpacing(Spacing::group);
    row->addWidget(m_grid = named(new PanelGrid(m_rows), u"DBGrid1"_s), 1);
    row->addWidget(results());
    m_grid->setExportName(u"I2C"_s);
    return frame;
}

/// Shown at the end of a run in which everything that is expected answered.
QWidget *I2C::goodResult()
{
    auto *frame = named(new QWidget, u"FrameResultadoOK"_s);
    auto *row = controlRow(frame);
    auto *mark = markNamed(u"MarcaOK"_s, Verdict::Pass);
    mark->show();
    row->addWidget(mark);
    row->addWidget(m_lbOK = new PlainLabel, 1);
    return frame;
}

QWidget *I2C::busResult()
{
    auto *lines = named(new PlainLabel, u"lbResultado"_s);
    lines->setWordWrap(true);
    auto *outcome = controlRow();
    for (QWidget *mark : {markNamed(u"OK"_s, Verdict::Pass), markNamed(u"NO"_s, Verdict::Fail)})
        outcome->addWidget(mark, 0, Qt::AlignTop);
    outcome->addWidget(lines, 1);
    auto *frame = named(new QGroupBox, u"FrameI2C"_s);
    auto *layout = new QVBoxLayout(frame);
    layout->addLayout(outcome);
    layout->addWidget(replyBox(), 1);
    return frame;
}

QWidget *I2C::runResult()
{
    auto *frame = named(new QWidget, u"FrameAutoI2C"_s);
    auto *layout = new QVBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_lbAuto = new PlainLabel);
    layout->addWidget(m_listView = named(new LineList, u"ListView"_s), 1);
    return frame;
}

QWidget *I2C::results()
{
    m_lbfalhas = named(new PlainLabel, u"lbfalhas"_s);
    m_txtDadosI2C = named(new PlainLabel, u"txtDadosI2C"_s);
    m_txtDadosI2C->setWordWrap(true);
    m_txtDadosI2C->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *frame = new QWidget;
    frame->setFixedWidth(kSideWidth);
    auto *column = new QVBoxLayout(frame);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_lbfalhas);
    column->addWidget(m_txtDadosI2C);
    column->addWidget(goodResult());
    column->addWidget(busResult(), 1);
    column->addWidget(runResult(), 1);
    return frame;
}

void I2C::connectControls()
{
    for (int bus = 0; bus < kBuses; ++bus)
        connect(m_btI2C[static_cast<std::size_t>(bus)], &QPushButton::clicked, &m_buses,
                [this, bus] { m_buses.btI2C_Click(bus); });
    connect(m_btAutoTeste, &QPushButton::clicked, &m_buses, &I2CScreen::btAutoTeste_Click);
    connect(m_btConhecido, &QPushButton::clicked, &m_buses, [this] {
        emit keepingAsked();
        m_buses.btConhecido_Click();
    });
    connect(m_btPdf, &QPushButton::clicked, &m_buses, &I2CScreen::btPdf_Click);
}

void I2C::Traducao_Form()
{
    CheckForm::Traducao_Form();
    for (int bus = 0; bus < kBuses; ++bus)
        m_btI2C[static_cast<std::size_t>(bus)]->setText(u"I2C %1"_s.arg(bus));
    m_btConhecido->setText(text(u"Telefone bom conhecido"));
    m_btConhecido->setIcon(lineIcon(u"record"));
    m_btPdf->setText(text(u"Visualizar Diagrama PDF"));
    m_btPdf->setIcon(lineIcon(u"help"));
    m_lbfalhas->setText(text(u"Falhas i2c"));
    m_txtDadosI2C->setAccessibleName(m_lbfalhas->text());
    m_lbOK->setText(text(u"Nenhuma falha detectada em I2C"));
    m_lbAuto->setText(text(u"Resultado do Auto Teste:"));
    m_listView->setAccessibleName(m_lbAuto->text());
    m_grid->setAccessibleName(text(u"Testes de Leitura I2C"));
    m_grid->setLanguage(language());
    m_grid->setEmptyText(text(u"DICA_TESTE"));
}
