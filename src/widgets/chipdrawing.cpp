#include "chipdrawing.h"

#include "catalogue.h"
#include "deviationmeter.h"
#include "fieldpaint.h"
#include "marklabel.h"
#include "plainlabel.h"
#include "plaintext.h"
#include "theme.h"
#include "valuefield.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

static constexpr int kLead = 24; ///< from a reading to the block
static constexpr int kMeterWidth = 45;
static constexpr int kPinGap = 10;
static constexpr int kLeastWidth = 96; ///< of the block, between the names of its pins
static constexpr int kLeastHeight = 220;
static constexpr auto kVolts = "No Reading "_L1; // longer than any voltage, in all languages
static constexpr auto kAmps = "-999,999 mA"_L1;
static constexpr auto kDeviation = "-100.0 %"_L1;

static bool isOutput(const ChipPin &pin)
{
    return pin.flow == Flow::Out;
}

/// What stands at a pin from the block outwards, on either side of it.
static QWidget *outwards(const ChipPin &pin, const QList<QWidget *> &widgets)
{
    auto *line = new QWidget;
    auto *layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Spacing::unit);
    layout->setDirection(isOutput(pin) ? QBoxLayout::LeftToRight : QBoxLayout::RightToLeft);
    for (QWidget *widget : widgets)
        layout->addWidget(widget);
    layout->addStretch();
    line->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    return line;
}

static QLabel *named(QLabel *label, const QString &name)
{
    label->setObjectName(name);
    return label;
}

/// The room for the names of the pins at either side of the block.
static int roomFor(std::span<const ChipPin> pins)
{
    const QFontMetrics metrics(textFont(TextSize::Small));
    int room = 0;
    for (const ChipPin &pin : pins)
        room = qMax(room, metrics.horizontalAdvance(pin.pin.toString()));
    return room + 3 * Spacing::unit;
}

static QVBoxLayout *pinColumn()
{
    auto *column = new QVBoxLayout;
    column->setSpacing(2);
    column->addStretch();
    return column;
}

ChipDrawing::ChipDrawing(std::span<const ChipPin> pins, const QList<QWidget *> &core, QWidget *parent)
    : QWidget(parent), m_block(new QWidget), m_pinRoom(roomFor(pins))
{
    fillBlock(core);
    QVBoxLayout *inputs = pinColumn();
    QVBoxLayout *outputs = pinColumn();
    for (const ChipPin &pin : pins)
        add(pin, isOutput(pin) ? *outputs : *inputs);
    auto *row = new QHBoxLayout;
    row->setSpacing(kLead);
    row->addStretch();
    row->addLayout(inputs);
    row->addWidget(m_block);
    row->addLayout(outputs);
    row->addStretch();
    auto *middle = new QVBoxLayout(this); // the block is no taller than what stands at it
    middle->addStretch();
    middle->addLayout(row);
    middle->addStretch();
    for (QVBoxLayout *column : {inputs, outputs})
        column->addStretch();
}

void ChipDrawing::fillBlock(const QList<QWidget *> &core)
{
    auto *inside = new QVBoxLayout(m_block);
    inside->setContentsMargins(m_pinRoom, Spacing::group, m_pinRoom, Spacing::group);
    inside->addStretch();
    for (QWidget *widget : core)
        inside->addWidget(widget, 0, Qt::AlignHCenter);
    inside->addStretch();
    m_block->setMinimumSize(2 * m_pinRoom + kLeastWidth, kLeastHeight);
}

void ChipDrawing::add(const ChipPin &pin, QVBoxLayout &column)
{
    Laid laid{.pin = &pin, .head = nullptr, .caption = new PlainLabel(pin.net), .row = nullptr};
    laid.head = headOf(laid);
    laid.row = rowOf(laid);
    column.addWidget(laid.head);
    column.addWidget(laid.row);
    m_laid.append(laid);
}

QWidget *ChipDrawing::headOf(Laid &laid)
{
    const ChipPin &pin = *laid.pin;
    named(laid.caption, pin.caption)->setFont(textFont(TextSize::Small));
    laid.caption->setContentsMargins(0, kPinGap, 0, 0);
    QList<QWidget *> widgets{laid.caption};
    if (pin.mark >= 0) {
        widgets.append(markNamed(u"OK(%1)"_s.arg(pin.mark), Verdict::Pass));
        widgets.append(markNamed(u"NO(%1)"_s.arg(pin.mark), Verdict::Fail));
    }
    if (!pin.warning.isEmpty()) {
        widgets.append(laid.passed = markNamed(u"Aprovado"_s + pin.volts, Verdict::Pass));
        widgets.append(laid.unmeasured = markNamed(u"NaoMedido"_s + pin.volts, Verdict::Incomplete));
        widgets.append(markNamed(pin.warning, Verdict::Fail));
        laid.passed->setText(u"OK"_s);
    }
    for (QWidget *mark : widgets.sliced(1))
        mark->setContentsMargins(0, kPinGap, 0, 0);
    return outwards(pin, widgets);
}

QWidget *ChipDrawing::rowOf(Laid &laid)
{
    const ChipPin &pin = *laid.pin;
    QList<QWidget *> widgets;
    const auto addField = [&widgets](const QString &name, QLatin1StringView sample) {
        if (!name.isEmpty())
            widgets.append(named(new ValueField(sample), name));
    };
    addField(pin.volts, kVolts);
    addField(pin.amps, kAmps);
    addField(pin.deviation, kDeviation);
    if (!pin.warning.isEmpty()) {
        addField("Desvio"_L1 + pin.volts, kDeviation);
        laid.deviation = static_cast<ValueField *>(widgets.last());
    }
    if (!pin.deviation.isEmpty() || !pin.warning.isEmpty()) {
        widgets.append(laid.meter = new DeviationMeter);
        laid.meter->setFixedWidth(kMeterWidth);
    }
    QWidget *row = outwards(pin, widgets);
    row->setObjectName(pin.frame);
    return row;
}

void ChipDrawing::showPanel(const Panel &panel, Language language)
{
    for (Laid &laid : m_laid) {
        showFact(laid, panel, language);
        nameReadings(laid);
    }
    update();
}

void ChipDrawing::tell(const Laid &laid, const Row &fact, Language language)
{
    const Colour back = fact.verdict == Verdict::Pass   ? Colour::Pass
                        : fact.verdict == Verdict::Fail ? Colour::Fault
                                                        : Colour::Neutral;
    paintField(*laid.deviation, {.text = fact.cell(u"PORC"), .back = back}, {});
    laid.unmeasured->setText(caption(u"Não medido", language));
    laid.passed->setVisible(laid.isSeen && fact.verdict == Verdict::Pass);
    laid.unmeasured->setVisible(laid.isSeen && fact.verdict == Verdict::Incomplete);
    laid.deviation->setVisible(laid.isSeen);
}

void ChipDrawing::showFact(Laid &laid, const Panel &panel, Language language)
{
    laid.what = laid.pin->net.isEmpty() ? laid.caption->text() : QString(laid.pin->net);
    const auto isThis = [&laid](const Row &fact) { return fact.cell(u"Malha") == laid.what; };
    const auto fact = std::ranges::find_if(panel.facts, isThis);
    const Row shown = fact == panel.facts.end() ? Row{} : *fact;
    laid.verdict = shown.verdict;
    for (const Judgement &judgement : panel.judgements) // a current is judged apart from the voltage of its net
        if (judgement.what.startsWith(laid.what + " ("_L1))
            laid.verdict = worst(laid.verdict, judgement.verdict);
    if (laid.meter)
        laid.meter->setRow(shown);
    laid.row->setToolTip(plainToolTip(shown.cell(u"REF")));
    const QList<ValueField *> fields = laid.row->findChildren<ValueField *>();
    laid.isSeen = !laid.row->isHidden() && std::ranges::any_of(fields, [&laid](const ValueField *field) {
        return field != laid.deviation && !field->isHidden();
    });
    if (laid.meter)
        laid.meter->setVisible(laid.isSeen);
    if (laid.deviation)
        tell(laid, shown, language);
}

void ChipDrawing::nameReadings(const Laid &laid)
{
    for (auto *label : laid.head->findChildren<QLabel *>() + laid.row->findChildren<QLabel *>()) {
        const QString name = u"%1 %2"_s.arg(laid.what, label->text()).trimmed();
        if (label != laid.caption && !name.isEmpty())
            label->setAccessibleName(name);
    }
}

void ChipDrawing::select(const QString &what)
{
    m_selected = what;
    update();
}

QRect ChipDrawing::areaOf(const Laid &laid) const
{
    return laid.head->geometry() | laid.row->geometry();
}

PinLine ChipDrawing::lineOf(const Laid &laid) const
{
    return {.block = m_block->geometry(),
            .readings = laid.row->geometry(),
            .flow = laid.pin->flow,
            .name = laid.pin->pin.toString(),
            .nameRoom = m_pinRoom,
            .verdict = laid.verdict};
}

void ChipDrawing::paintEvent(QPaintEvent *)
{
    const Theme &theme = currentTheme();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(textFont(TextSize::Small));
    for (const Laid &laid : m_laid) {
        if (laid.isSeen)
            paintPin(painter, lineOf(laid));
    }
    painter.setPen(QPen(theme.dim, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(m_block->geometry(), Spacing::unit, Spacing::unit);
    painter.setPen(QPen(theme.accent, 2));
    for (const Laid &laid : m_laid) {
        if (!m_selected.isEmpty() && m_selected.startsWith(laid.what))
            painter.drawRoundedRect(areaOf(laid).adjusted(-3, 0, 3, 3), 3, 3);
    }
}
