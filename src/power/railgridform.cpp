#include "railgridform.h"

#include "icons.h"
#include "panelgrid.h"
#include "plainlabel.h"
#include "plaintext.h"
#include "reportbuttons.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QToolButton>

using namespace Qt::StringLiterals;

static constexpr std::array kColumns = {
    GridColumn{u"Verdict", u"Veredito", ColumnKind::Verdict}, GridColumn{u"Orig", u"Saída", ColumnKind::Name},
    GridColumn{u"Malha", u"Malha", ColumnKind::Name},         GridColumn{u"Ci", u"IC", ColumnKind::Text},
    GridColumn{u"Leitura", u"Leitura", ColumnKind::Number},   GridColumn{u"REF", u"Referência", ColumnKind::Number},
    GridColumn{u"PORC", u"Desvio", ColumnKind::Deviation},    GridColumn{u"Drift", u"Deriva", ColumnKind::Drift},
    GridColumn{u"G1", u"Gravação 1", ColumnKind::Number},     GridColumn{u"G2", u"Gravação 2", ColumnKind::Number},
    GridColumn{u"G3", u"Gravação 3", ColumnKind::Number},
};

static QString element(const QString &array, int index)
{
    return u"%1(%2)"_s.arg(array).arg(index);
}

RailGridForm::RailGridForm(std::unique_ptr<RailGridScreen> screen, QWidget *parent)
    : RailForm(std::move(screen), parent), m_rails(static_cast<RailGridScreen &>(this->screen())), m_rows(kColumns)
{
}

void RailGridForm::layOutGrid(const QList<QWidget *> &buttons, const QList<QWidget *> &choices)
{
    m_dbGrid1 = named(new PanelGrid(m_rows), u"DBGrid1"_s);
    m_report = new ReportButtons(m_rails);
    QList<QWidget *> row{orders(), decimals()};
    row += choices;
    row += {nullptr, recordings()};
    layOut({.note = u"lbVar"_s, .buttons = buttons, .choices = row, .body = m_dbGrid1, .report = m_report});
    painter().setRows(&m_rows);
    connectGrid();
    connectRecordings();
}

QWidget *RailGridForm::orders()
{
    auto *frame = named(new QWidget, u"Frame1"_s);
    auto *row = controlRow(frame);
    row->addWidget(m_lbClassificacao = named(new PlainLabel, u"lbClassificacao"_s));
    static constexpr std::array<QStringView, 3> kNames = {u"OpMalha", u"OpIc", u"OpPorc"};
    for (std::size_t i = 0; i < kNames.size(); ++i) {
        m_orders[i] = named(new QRadioButton, kNames[i].toString());
        row->addWidget(m_orders[i]);
    }
    return frame;
}

QWidget *RailGridForm::recordings()
{
    auto *frame = named(new QWidget, u"FrameGravacao"_s);
    auto *row = controlRow(frame);
    row->addWidget(m_lbGravacao = named(new PlainLabel, u"lbGravacao"_s));
    for (int slot = 1; slot <= 3; ++slot) {
        const auto place = static_cast<std::size_t>(slot - 1);
        m_btGravar[place] = named(new QToolButton, element(u"btGravar"_s, slot));
        m_btExcluir[place] = named(new QToolButton, element(u"btExcluir"_s, slot));
        m_btGravar[place]->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        m_btGravar[place]->setText(QString::number(slot));
        m_btExcluir[place]->setProperty("flat", true);
        for (QToolButton *button : {m_btGravar[place], m_btExcluir[place]})
            button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        row->addWidget(m_btGravar[place]);
        row->addWidget(m_btExcluir[place]);
    }
    return frame;
}

void RailGridForm::connectGrid()
{
    connect(m_orders[0], &QRadioButton::clicked, &m_rails, &RailGridScreen::OpMalha_Click);
    connect(m_orders[1], &QRadioButton::clicked, &m_rails, &RailGridScreen::OpIc_Click);
    connect(m_orders[2], &QRadioButton::clicked, &m_rails, &RailGridScreen::OpPorc_Click);
    connect(m_dbGrid1, &PanelGrid::activated, &m_rails, &RailGridScreen::DBGrid1_Click);
    connect(m_dbGrid1, &PanelGrid::exportFailed, this, &RailGridForm::tellUnwritten);
}

void RailGridForm::connectRecordings()
{
    for (int slot = 1; slot <= 3; ++slot) {
        const auto place = static_cast<std::size_t>(slot - 1);
        connect(m_btGravar[place], &QToolButton::clicked, &m_rails, [this, slot] { m_rails.btGravar_Click(slot); });
        connect(m_btExcluir[place], &QToolButton::clicked, &m_rails, [this, slot] { m_rails.btExcluir_Click(slot); });
        for (QToolButton *button : {m_btGravar[place], m_btExcluir[place]})
            connect(button, &QToolButton::clicked, this, &RailGridForm::keepingAsked);
    }
}

void RailGridForm::Traducao_Form()
{
    RailForm::Traducao_Form();
    static constexpr std::array<QStringView, 3> kOrders = {u"Malha", u"IC", u"%"};
    for (std::size_t i = 0; i < kOrders.size(); ++i)
        m_orders[i]->setText(text(kOrders[i]));
    m_lbClassificacao->setText(text(u"Classificação"));
    m_lbGravacao->setText(text(u"Gravação"));
    m_dbGrid1->setLanguage(language());
    m_report->Traducao(language());
    translateRecordings();
}

void RailGridForm::translateRecordings()
{
    for (int slot = 1; slot <= 3; ++slot) {
        const auto place = static_cast<std::size_t>(slot - 1);
        const QString record = text(u"Gravar") + u' ' + QString::number(slot);
        const QString erase = text(u"Excluir") + u' ' + QString::number(slot);
        m_btGravar[place]->setIcon(lineIcon(u"record"));
        m_btGravar[place]->setToolTip(plainToolTip(record));
        m_btGravar[place]->setAccessibleName(record);
        m_btExcluir[place]->setIcon(lineIcon(u"delete"));
        m_btExcluir[place]->setToolTip(plainToolTip(erase));
        m_btExcluir[place]->setAccessibleName(erase);
    }
}

void RailGridForm::goTo(const QString &what)
{
    RailForm::goTo(what);
    for (int place = 0; place < m_rows.rowCount(); ++place)
        if (m_rows.row(place).cell(u"Malha") == what)
            m_dbGrid1->selectRow(place);
}

void RailGridForm::paintPanel()
{
    RailForm::paintPanel();
    const Panel &panel = screen().panel();
    const QString model = m_rails.session().model();
    m_dbGrid1->setEmptyText(model.isEmpty() ? text(u"DICA_MODELO") : text(u"DICA_SEM_LINHAS").arg(model));
    m_dbGrid1->setExportName(u"%1 %2"_s.arg(panel.screen, model));
    m_dbGrid1->setAccessibleName(panel.title);
}
