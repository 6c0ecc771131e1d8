#include "buckteste.h"

#include "bucktestescreen.h"
#include "icons.h"
#include "linelist.h"
#include "plainlabel.h"
#include "theme.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

BuckTeste::BuckTeste(Session &session, QWidget *parent)
    : ReadingForm(std::make_unique<BuckTesteScreen>(session), parent), m_bucks(static_cast<BuckTesteScreen &>(screen()))
{
    m_btBl = readButton(u"btBl"_s);
    m_botao1 = named(new QPushButton, u"Botao1"_s);
    m_botao2 = named(new QPushButton, u"Botao2"_s);
    layOut({.note = u"lbInfoBucks"_s,
            .buttons = {m_btBl},
            .choices = {choice(), m_botao1, m_botao2, nullptr},
            .body = lists()});
    painter().setLines(&m_listView->lines());
    connectControls();
}

QWidget *BuckTeste::choice()
{
    auto *frame = named(new QWidget, u"FrameBucks"_s);
    auto *row = controlRow(frame);
    row->addWidget(m_label1 = named(new PlainLabel, u"Label1"_s));
    row->addWidget(m_combo1 = named(new QComboBox, u"Combo1"_s));
    m_combo1->setEditable(true);
    m_combo1->setInsertPolicy(QComboBox::NoInsert);
    m_combo1->setEditText(m_bucks.Combo1());
    return frame;
}

QWidget *BuckTeste::lists()
{
    auto *frame = named(new QWidget, u"lbGrade"_s);
    auto *grid = new QGridLayout(frame);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(Spacing::control);
    grid->addWidget(m_lbDispositivo = named(new PlainLabel, u"lbDispositivo"_s), 0, 0);
    grid->addWidget(m_lbComparador = named(new PlainLabel, u"Label2"_s), 0, 1);
    grid->addWidget(m_listView = named(new LineList, u"ListView"_s), 1, 0);
    grid->addWidget(m_listViewComparador = named(new LineList, u"ListViewComparador"_s), 1, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    return frame;
}

void BuckTeste::connectControls()
{
    connect(m_combo1, &QComboBox::currentTextChanged, &m_bucks, &BuckTesteScreen::Combo1_Change);
    connect(m_btBl, &QPushButton::clicked, &m_bucks, &BuckTesteScreen::btBl_Click);
    connect(m_botao1, &QPushButton::clicked, &m_bucks, &BuckTesteScreen::Botao1_Click);
    connect(m_botao2, &QPushButton::clicked, &m_bucks, &BuckTesteScreen::Botao2_Click);
}

void BuckTeste::Traducao_Form()
{
    ReadingForm::Traducao_Form();
    m_label1->setText(text(u"Buck"));
    m_combo1->setAccessibleName(text(u"Buck"));
    m_btBl->setText(text(u"Testar") + "  F5"_L1);
    m_btBl->setAccessibleName(text(u"Testar"));
    m_botao1->setText(text(u"Testar todos"));
    m_botao2->setText(text(u"Cancelar"));
    m_lbDispositivo->setText(text(u"Leitura do dispositivo conectado:"));
    m_lbComparador->setText(text(u"Comparador: (Dispositivos Gravados)"));
    m_listView->setAccessibleName(m_lbDispositivo->text());
    m_listViewComparador->setAccessibleName(m_lbComparador->text());
}

void BuckTeste::paintPanel()
{
    ReadingForm::paintPanel();
    m_listView->setVerdicts(m_bucks.lineVerdicts());
}

QString BuckTeste::ownHint() const
{
    return m_bucks.unmeasured();
}

void BuckTeste::goTo(const QString &what)
{
    ReadingForm::goTo(what);
    const QStringList lines = m_listView->lines().stringList();
    for (int line = 0; line < lines.size(); ++line)
        if (lines.at(line).trimmed().startsWith(what + u':'))
            m_listView->setCurrentIndex(m_listView->lines().index(line));
}
