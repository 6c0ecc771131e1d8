#include "verdictbadge.h"

#include "glyph.h"
#include "theme.h"

#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

static constexpr int kGlyphWidth = 28;
static constexpr int kTextLeft = Spacing::control + kGlyphWidth + Spacing::control;

/// Wide enough that most verdicts come and go without moving what stands beside them.
static constexpr int kLeastWidth = 240;

void VerdictBadge::setLanguage(Language language)
{
    m_language = language;
    tell();
}

void VerdictBadge::setPanel(const Panel &panel)
{
    m_panel = panel;
    tell();
}

int VerdictBadge::count(const Panel &panel, Verdict verdict)
{
    return static_cast<int>(std::ranges::count(panel.judgements, verdict, &Judgement::verdict));
}

static QString detailOf(const Panel &panel, Language language)
{
    static constexpr std::pair<Verdict, QStringView> kCounted[] = {
        {Verdict::Fail, u"%1 com falha"}, {Verdict::Incomplete, u"%1 sem medição"}, {Verdict::Pass, u"%1 aprovados"}};
    QStringList parts;
    for (const auto &[verdict, key] : kCounted) {
        if (const int many = VerdictBadge::count(panel, verdict))
            parts.append(caption(key, language).arg(many));
    }
    return parts.join(u" · "_s);
}

void VerdictBadge::tell()
{
    m_word = verdictCaption(m_panel.verdict, m_language);
    m_detail = detailOf(m_panel, m_language);
    setAccessibleName(m_word);
    setAccessibleDescription(m_detail);
    updateGeometry();
    update();
}

QSize VerdictBadge::sizeHint() const
{
    const int word = QFontMetrics(textFont(TextSize::Large)).horizontalAdvance(m_word);
    const int detail = QFontMetrics(textFont(TextSize::Small)).horizontalAdvance(m_detail);
    return {std::max(kLeastWidth, kTextLeft + std::max(word, detail) + Spacing::group), 13 * Spacing::unit};
}

void VerdictBadge::paintEvent(QPaintEvent *)
{
    const Theme &theme = currentTheme();
    const bool none = m_panel.verdict == Verdict::None;
    const QColor ink = none ? theme.dim : theme.onField;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(none ? theme.border : Qt::transparent);
    painter.setBrush(fieldColour(m_panel.verdict, theme));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Spacing::unit, Spacing::unit);
    paintGlyph(painter, QRect(Spacing::control, 0, kGlyphWidth, height()), glyphOf(m_panel.verdict), ink);
    painter.setPen(ink);
    const QRect text = rect().adjusted(kTextLeft, 2, 0, -Spacing::unit);
    painter.setFont(textFont(TextSize::Large));
    painter.drawText(text, m_detail.isEmpty() ? Qt::AlignVCenter : Qt::AlignTop, m_word);
    painter.setFont(textFont(TextSize::Small));
    painter.drawText(text, Qt::AlignBottom, m_detail);
}
