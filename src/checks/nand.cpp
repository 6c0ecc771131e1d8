#include "nand.h"

#include "chipreading.h"
#include "icons.h"
#include "nandscreen.h"
#include "panelgrid.h"
#include "theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

static constexpr std::array kColumns = {
    GridColumn{u"Orig", u"Saída", ColumnKind::Name},
    GridColumn{u"Malha", u"Malha", ColumnKind::Name},
    GridColumn{u"Ci", u"IC", ColumnKind::Name},
    GridColumn{u"Leitura", u"Leitura", ColumnKind::Number},
    GridColumn{u"REF", u"Referência", ColumnKind::Number},
    GridColumn{u"PORC", u"%", ColumnKind::Number},
};

Nand::Nand(Session &session, QWidget *parent)
    : CheckForm(std::make_unique<NandScreen>(session), parent),
      m_nand(static_cast<NandScreen &>(screen())),
      m_rows(kColumns)
{
    for (std::size_t test = 0; test < m_btBl.size(); ++test)
        m_btBl[test] = testButton(element(u"btBl", static_cast<int>(test)));
    m_btPdf = named(new QPushButton, u"btPdf"_s);
    m_lbNand = largeLabel(u"lbNand"_s);
    layOut({.note = u"lbStatus2"_s, .buttons = {m_btPdf}, .choices = {}, .body = body()});
    painter().setRows(&m_rows);
    connectControls();
}

QWidget *Nand::body()
{
    auto *frame = new QWidget;
    auto *row = controlRow(frame);
    row->setSpacing(Spacing::group);
    row->addWidget(column({m_btBl.begin(), m_btBl.end()}));
    auto *right = new QVBoxLayout;
    right->addWidget(result({m_lbNand}));
    right->addWidget(replyBox(), 1);
    right->addWidget(rails(), 1);
    row->addLayout(right, 1);
    return frame;
}

QWidget *Nand::rails()
{
    auto *frame = named(new QWidget, u"FrameTensoes"_s);
    auto *layout = new QVBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_grid = named(new PanelGrid(m_rows), u"DBGrid1"_s), 1);
    layout->addWidget(m_btVCore = named(new QPushButton, u"btVCore"_s), 0, Qt::AlignLeft);
    m_grid->setExportName(u"NAND"_s);
    return frame;
}

void Nand::connectControls()
{
    for (std::size_t test = 0; test < m_btBl.size(); ++test)
        connect(m_btBl[test], &QPushButton::clicked, &m_nand,
                [this, test] { m_nand.btBl_Click(static_cast<int>(test)); });
    connect(m_btPdf, &QPushButton::clicked, &m_nand, &NandScreen::btPdf_Click);
    connect(m_btVCore, &QPushButton::clicked, &m_nand, &NandScreen::btVCore_Click);
}

void Nand::Traducao_Form()
{
    CheckForm::Traducao_Form();
    for (std::size_t test = 0; test < m_btBl.size(); ++test)
        m_btBl[test]->setText(text(nandCaption(static_cast<NandTest>(test))));
    m_btPdf->setText(text(u"PDFs Nand"));
    m_btPdf->setIcon(lineIcon(u"help"));
    m_btVCore->setText(text(u"Abrir %1").arg(text(u"VCore") + u" (NAND)"_s));
    m_btVCore->setIcon(lineIcon(u"vcore"));
    m_lbNand->setAccessibleName(text(u"Tamanho da NAND"));
    m_grid->setAccessibleName(text(u"Tensões"));
    m_grid->setLanguage(language());
    m_grid->setEmptyText(text(u"DICA_SEM_LINHAS").arg(screen().session().model()));
}
