#include "chipform.h"

#include "icons.h"
#include "linelist.h"
#include "marklabel.h"
#include "plainlabel.h"
#include "reportbuttons.h"
#include "theme.h"
#include "valuefield.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>

using namespace Qt::StringLiterals;

/// How the height is shared while the log is open.
static constexpr int kDrawingShare = 340;
static constexpr int kLogShare = 160;
static constexpr auto kTemperature = "100.0 º"_L1;

ChipForm::ChipForm(std::unique_ptr<ChipScreen> screen, const ChipLook &look, const QList<QPushButton *> &buttons,
                   QWidget *parent)
    : ReadingForm(std::move(screen), parent), m_chip(static_cast<ChipScreen &>(this->screen()))
{
    m_drawing = new ChipDrawing(look.pins, core(look));
    auto *body = new QSplitter(Qt::Vertical);
    body->setChildrenCollapsible(false);
    body->addWidget(scrolled(m_drawing));
    if (m_chip.hasLog())
        body->addWidget(logFrame());
    body->setSizes({kDrawingShare, kLogShare});
    if (m_chip.isReported())
        m_report = new ReportButtons(m_chip);
    QPushButton *read = readButton(u"btExecutaLeitura"_s);
    connect(read, &QPushButton::clicked, &m_chip, &ChipScreen::btExecutaLeitura_Click);
    layOut({.note = look.note, .buttons = {read}, .choices = choices(buttons), .body = body, .report = m_report});
}

QList<QWidget *> ChipForm::core(const ChipLook &look)
{
    QList<QWidget *> widgets;
    auto *chipName = named(new PlainLabel, u"lb"_s);
    m_lbUC = named(new PlainLabel, u"lbUC"_s);
    m_lbUC->setFont(textFont(TextSize::Large));
    widgets << chipName << m_lbUC;
    if (!look.status.isEmpty())
        widgets.append(named(new PlainLabel, look.status));
    if (look.mark >= 0) {
        widgets.append(markNamed(element(u"OK", look.mark), Verdict::Pass));
        widgets.append(markNamed(element(u"NO", look.mark), Verdict::Fail));
    }
    if (!look.temp.isEmpty()) {
        m_lbTemp = new PlainLabel;
        m_lbTemp->setFont(textFont(TextSize::Small));
        widgets << m_lbTemp << (m_temp = named(new ValueField(kTemperature), look.temp));
    }
    return widgets;
}

QPushButton *ChipForm::button(const QString &name, void (ChipScreen::*clicked)())
{
    auto *button = named(new QPushButton, name);
    connect(button, &QPushButton::clicked, &m_chip, clicked);
    return button;
}

QList<QWidget *> ChipForm::choices(const QList<QPushButton *> &own)
{
    QList<QWidget *> widgets{nullptr};
    for (QPushButton *first : own)
        widgets.append(first);
    if (m_chip.refusesModels())
        widgets.append(button(u"btOutraTela"_s, &ChipScreen::btOutraTela_Click));
    if (m_chip.hasLog())
        widgets.append(button(u"btLog"_s, &ChipScreen::btLog_Click));
    return widgets;
}

QWidget *ChipForm::scrolled(QWidget *drawing)
{
    auto *area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(drawing);
    return area;
}

QWidget *ChipForm::logFrame()
{
    auto *frame = named(new QWidget, u"FrameLog"_s);
    auto *grid = new QGridLayout(frame);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(Spacing::unit);
    grid->addWidget(m_lbReply = named(new PlainLabel, u"lblLabel(0)"_s), 0, 0);
    grid->addWidget(m_lbRecorded = named(new PlainLabel, u"lblLabel(1)"_s), 0, 1);
    grid->addWidget(m_reply = named(new LineList, u"txtLog"_s), 1, 0);
    grid->addWidget(m_recorded = named(new LineList, u"txtComparador"_s), 1, 1);
    for (const int column : {0, 1})
        grid->setColumnStretch(column, 1);
    return frame;
}

void ChipForm::Traducao_Form()
{
    ReadingForm::Traducao_Form();
    m_lbUC->setAccessibleName(text(u"IC"));
    if (m_temp) {
        m_lbTemp->setText(text(u"TEMPERATURA"));
        m_temp->setAccessibleName(text(u"TEMPERATURA"));
    }
    if (m_report)
        m_report->Traducao(language());
    if (!m_reply)
        return;
    m_lbReply->setText(text(u"Leitura do dispositivo conectado:"));
    m_lbRecorded->setText(text(u"Comparador: (Dispositivos Gravados)"));
    m_reply->setAccessibleName(m_lbReply->text());
    m_recorded->setAccessibleName(m_lbRecorded->text());
}

void ChipForm::paintPanel()
{
    ReadingForm::paintPanel();
    m_drawing->showPanel(screen().panel(), language());
    if (!m_reply)
        return;
    m_reply->setLines(m_chip.replyLines());
    m_recorded->setLines(m_chip.recordedLines());
}

void ChipForm::goTo(const QString &what)
{
    ReadingForm::goTo(what);
    m_drawing->select(what);
}
