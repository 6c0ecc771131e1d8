#include "comparisonhead.h"

#include "catalogue.h"
#include "plainlabel.h"
#include "plaintext.h"
#include "readingform.h"
#include "theme.h"
#include "verdictbadge.h"

#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

using namespace Qt::StringLiterals;

static constexpr double kMostTolerance = 50;

ComparisonHead::ComparisonHead(QWidget *parent)
    : QWidget(parent),
      m_badge(named(new VerdictBadge, u"Veredito"_s)),
      m_lbTolerancia(named(new PlainLabel, u"lbTolerancia"_s)),
      m_tolerancia(named(new QDoubleSpinBox, u"Tolerancia"_s)),
      m_btAnteriorDif(named(new QToolButton, u"btAnteriorDif"_s)),
      m_btProximaDif(named(new QToolButton, u"btProximaDif"_s)),
      m_btDiferencas(named(new QPushButton, u"btDiferencas"_s))
{
    m_tolerancia->setRange(0, kMostTolerance);
    m_tolerancia->setDecimals(1);
    m_tolerancia->setSuffix(u" %"_s);
    m_btAnteriorDif->setArrowType(Qt::UpArrow);
    m_btProximaDif->setArrowType(Qt::DownArrow);
    m_btDiferencas->setCheckable(true);
    auto *top = controlRow();
    top->addWidget(named(new PlainLabel, u"lbDispositivo"_s));
    for (const auto &name : {u"lbCorte"_s, u"lbIntegridade"_s}) {
        auto *warning = named(new PlainLabel, name);
        warning->setMargin(Spacing::unit / 2);
        warning->setMinimumWidth(1);
        top->addWidget(warning);
    }
    top->addStretch();
    auto *lines = new QVBoxLayout;
    lines->setSpacing(Spacing::unit);
    lines->addLayout(top);
    auto *summary = named(new PlainLabel, u"lbResumo"_s);
    summary->setMinimumWidth(1);
    lines->addWidget(summary);
    auto *row = controlRow(this);
    row->addWidget(m_badge);
    row->addSpacing(Spacing::control);
    row->addLayout(lines, 1);
    for (QWidget *part : std::initializer_list<QWidget *>{m_lbTolerancia, m_tolerancia, m_btAnteriorDif, m_btProximaDif,
                                                          m_btDiferencas})
        row->addWidget(part);
    connect(m_tolerancia, &QDoubleSpinBox::valueChanged, this, &ComparisonHead::toleranceChosen);
    connect(m_btDiferencas, &QPushButton::toggled, this, &ComparisonHead::showWayThrough);
    connect(m_btDiferencas, &QPushButton::toggled, this, &ComparisonHead::differencesToggled);
    connect(m_btProximaDif, &QToolButton::clicked, this, &ComparisonHead::nextWanted);
    connect(m_btAnteriorDif, &QToolButton::clicked, this, &ComparisonHead::previousWanted);
    showWayThrough(false);
}

void ComparisonHead::showWayThrough(bool shown)
{
    for (QWidget *part :
         std::initializer_list<QWidget *>{m_lbTolerancia, m_tolerancia, m_btAnteriorDif, m_btProximaDif})
        part->setVisible(shown);
}

void ComparisonHead::setPanel(const Panel &panel)
{
    m_badge->setPanel(panel);
}

void ComparisonHead::Traducao_Form(Language language)
{
    m_badge->setLanguage(language);
    m_lbTolerancia->setText(caption(u"Tolerância", language));
    m_tolerancia->setAccessibleName(caption(u"Tolerância", language));
    m_btDiferencas->setText(caption(u"Diferenças", language));
    m_btDiferencas->setToolTip(plainToolTip(caption(u"Diferenças", language) + "  (F7)"_L1));
    m_btProximaDif->setToolTip(plainToolTip(caption(u"Próxima diferença", language) + "  (F8)"_L1));
    m_btProximaDif->setAccessibleName(caption(u"Próxima diferença", language));
    m_btAnteriorDif->setToolTip(plainToolTip(caption(u"Diferença anterior", language) + "  (Shift+F8)"_L1));
    m_btAnteriorDif->setAccessibleName(caption(u"Diferença anterior", language));
}
