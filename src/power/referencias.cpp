#include "referencias.h"

#include "icons.h"
#include "panelgrid.h"

#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

static constexpr std::array kColumns = {
    GridColumn{u"Orig", u"Saída", ColumnKind::Name},
    GridColumn{u"Malha", u"Malha", ColumnKind::Name},
    GridColumn{u"Ci", u"IC", ColumnKind::Text},
    GridColumn{u"Leitura", u"Esta placa", ColumnKind::Number},
    GridColumn{u"Placas", u"Placas", ColumnKind::Number},
    GridColumn{u"Mediana", u"Mediana", ColumnKind::Number},
    GridColumn{u"Dispersao", u"Dispersão", ColumnKind::Number},
    GridColumn{u"REF", u"Referência", ColumnKind::Number},
    GridColumn{u"Nova", u"Nova referência", ColumnKind::Number},
};

Referencias::Referencias(Session &session, QWidget *parent)
    : ReadingForm(std::make_unique<ReferenciasScreen>(session), parent),
      m_boards(static_cast<ReferenciasScreen &>(screen())),
      m_rows(kColumns)
{
    m_btTomar = named(new QPushButton, u"btTomar"_s);
    m_btDesfazer = named(new QPushButton, u"btDesfazer"_s);
    m_btExecutaLeitura = readButton(u"btExecutaLeitura"_s);
    m_dbGrid1 = named(new PanelGrid(m_rows), u"DBGrid1"_s);
    layOut({.note = u"lbUltima"_s,
            .buttons = {m_btExecutaLeitura},
            .choices = {m_btTomar, m_btDesfazer, nullptr},
            .body = m_dbGrid1});
    painter().setRows(&m_rows);
    connectControls();
}

void Referencias::connectControls()
{
    connect(m_btExecutaLeitura, &QPushButton::clicked, &m_boards, &ReferenciasScreen::btExecutaLeitura_Click);
    connect(m_btTomar, &QPushButton::clicked, &m_boards, &ReferenciasScreen::btTomar_Click);
    connect(m_btDesfazer, &QPushButton::clicked, &m_boards, &ReferenciasScreen::btDesfazer_Click);
    for (QPushButton *button : {m_btTomar, m_btDesfazer})
        connect(button, &QPushButton::clicked, this, &Referencias::keepingAsked);
    connect(m_dbGrid1, &PanelGrid::exportFailed, this, &Referencias::tellUnwritten);
}

void Referencias::Traducao_Form()
{
    ReadingForm::Traducao_Form();
    m_btTomar->setText(text(u"Tomar como referência"));
    m_btTomar->setIcon(lineIcon(u"record"));
    m_btDesfazer->setText(text(u"Desfazer"));
    m_dbGrid1->setAccessibleName(text(u"Placas de referência"));
    m_dbGrid1->setLanguage(language());
}

void Referencias::paintPanel()
{
    ReadingForm::paintPanel();
    const QString model = m_boards.session().model();
    m_dbGrid1->setEmptyText(model.isEmpty() ? text(u"DICA_MODELO") : text(u"REFERENCIAS_COMPLETAS").arg(model));
    m_dbGrid1->setExportName(u"%1 %2"_s.arg(screen().panel().screen, model));
}
