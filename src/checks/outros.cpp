#include "outros.h"

#include "chipreading.h"
#include "icons.h"
#include "outrosscreen.h"
#include "plainlabel.h"
#include "theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

static constexpr std::array kIndices = {kFullMemoryTest, kFullMemoryTest + 1};

Outros::Outros(Session &session, QWidget *parent)
    : CheckForm(std::make_unique<OutrosScreen>(session), parent), m_tests(static_cast<OutrosScreen &>(screen()))
{
    for (std::size_t i = 0; i < m_btBl.size(); ++i)
        m_btBl[i] = testButton(element(u"btBl", kIndices[i]));
    m_btBateria = testButton(u"btBateria"_s);
    m_btPanicFull = named(new QPushButton, u"btPanicFull"_s);
    m_lbIC = named(new PlainLabel, u"lbIC"_s);
    layOut({.note = u"lbStatus2"_s,
            .buttons = {comparatorButton(), m_btPanicFull},
            .choices = {named(new PlainLabel, u"lbDispositivo"_s), nullptr},
            .body = body()});
    connectControls();
}

QWidget *Outros::body()
{
    auto *texts = controlRow();
    texts->addWidget(replyBox(), 1);
    texts->addWidget(comparator(), 1);
    auto *right = new QVBoxLayout;
    right->addWidget(result({m_lbIC}));
    right->addLayout(texts, 1);
    auto *frame = new QWidget;
    auto *row = controlRow(frame);
    row->setSpacing(Spacing::group);
    row->addWidget(column({m_btBl[0], m_btBl[1], m_btBateria}));
    row->addLayout(right, 1);
    return frame;
}

void Outros::connectControls()
{
    for (std::size_t i = 0; i < m_btBl.size(); ++i)
        connect(m_btBl[i], &QPushButton::clicked, &m_tests, [this, i] { m_tests.btBl_Click(kIndices[i]); });
    connect(m_btBateria, &QPushButton::clicked, &m_tests, &OutrosScreen::btBateria_Click);
    connect(m_btPanicFull, &QPushButton::clicked, &m_tests, &OutrosScreen::btPanicFull_Click);
}

void Outros::Traducao_Form()
{
    CheckForm::Traducao_Form();
    for (std::size_t i = 0; i < m_btBl.size(); ++i)
        m_btBl[i]->setText(text(memoryTest(kIndices[i])->caption));
    m_btBateria->setText(text(u"Bateria"));
    m_btBateria->setIcon(lineIcon(u"battery"));
    m_btPanicFull->setText(text(u"Guia de panic full"));
    m_btPanicFull->setIcon(lineIcon(u"help"));
    m_lbIC->setAccessibleName(text(u"IC"));
}
