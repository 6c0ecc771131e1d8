#include "consolepane.h"

#include "catalogue.h"
#include "comparatorpane.h"
#include "masterscreen.h"
#include "plainlabel.h"
#include "readingform.h"
#include "textpane.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

ConsolePane::ConsolePane(MasterScreen &screen, QWidget *parent)
    : QWidget(parent),
      m_screen(screen),
      m_ldDispConect(named(new PlainLabel, u"ldDispConect"_s)),
      m_lbLinhas(named(new PlainLabel, u"lbLinhas"_s)),
      m_txtConsole(new TextPane(u"txtConsole"_s)),
      m_ckLimpar(named(new QCheckBox, u"ckLimpar"_s)),
      m_btLimpar(named(new QPushButton, u"btLimpar"_s))
{
    m_ckLimpar->setChecked(true);
    auto *foot = controlRow();
    foot->addWidget(m_ckLimpar);
    foot->addWidget(m_btLimpar);
    foot->addStretch();
    auto *column = controlColumn(this);
    column->addWidget(head());
    column->addWidget(m_txtConsole, 1);
    column->addLayout(foot);
    connect(m_ckLimpar, &QCheckBox::toggled, &screen, &MasterScreen::setErasing);
    connect(m_btLimpar, &QPushButton::clicked, &screen, &MasterScreen::btLimpar_Click);
    connect(m_btLimpar, &QPushButton::clicked, this, &ConsolePane::cleared);
    connect(&screen, &MasterScreen::consoleReplaced, this, &ConsolePane::showConsole);
    connect(&screen, &MasterScreen::consoleStarted, this, [this] {
        if (m_ckLimpar->isChecked())
            m_txtConsole->replaceWith({});
        else
            m_txtConsole->addSoon(u"\r\n"_s);
    });
    connect(&screen, &MasterScreen::consoleAppended, m_txtConsole, &TextPane::addSoon);
}

QWidget *ConsolePane::head()
{
    auto *widget = new QWidget;
    widget->setMinimumHeight(ComparatorPane::kHeadHeight);
    auto *row = controlRow(widget);
    row->addWidget(m_ldDispConect);
    row->addStretch();
    m_lbLinhas->setMinimumWidth(1);
    row->addWidget(m_lbLinhas);
    return widget;
}

void ConsolePane::showConsole()
{
    m_txtConsole->replaceWith(m_screen.txtConsole());
    tellShownLines();
}

void ConsolePane::tellShownLines()
{
    const auto text = [this](QStringView key) { return caption(key, m_screen.session().language()); };
    m_lbLinhas->setVisible(!m_txtConsole->showsAll());
    m_lbLinhas->setText(text(u"%1 de %2 linhas mostradas; “%3” guarda todas")
                            .arg(TextPane::kLinesShown)
                            .arg(m_txtConsole->linesOfText())
                            .arg(text(u"Salvar texto")));
}

void ConsolePane::Traducao_Form()
{
    const auto text = [this](QStringView key) { return caption(key, m_screen.session().language()); };
    m_ldDispConect->setText(text(u"Leitura do dispositivo conectado:"));
    m_txtConsole->setAccessibleName(text(u"Leitura do dispositivo conectado:"));
    m_ckLimpar->setText(text(u"Limpar dados após comando"));
    m_btLimpar->setText(text(u"Limpar"));
    tellShownLines();
}
