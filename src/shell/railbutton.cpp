#include "railbutton.h"

#include "theme.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionToolButton>

#include <algorithm>

static constexpr int kIcon = 20;
static constexpr int kHeight = Spacing::target;
static constexpr int kLeastHeight = 27;
/// A longer caption is set in two lines of small type.
static constexpr int kCaption = 160;
static constexpr int kTextLeft = 2 * Spacing::control + kIcon;

RailButton::RailButton(QString key, QWidget *parent) : QToolButton(parent), m_key(std::move(key))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    setCheckable(true);
    setFocusPolicy(Qt::TabFocus);
    setProperty("flat", true);
    setProperty("rail", true);
}

QSize RailButton::sizeHint() const
{
    const int key = QFontMetrics(textFont(TextSize::Small)).horizontalAdvance(m_key);
    const int caption = std::min(QFontMetrics(textFont()).horizontalAdvance(text()), kCaption);
    return {kTextLeft + caption + Spacing::control + key + Spacing::control, kHeight};
}

QSize RailButton::minimumSizeHint() const
{
    return {sizeHint().width(), kLeastHeight};
}

void RailButton::paintEvent(QPaintEvent *)
{
    QStyleOptionToolButton option;
    initStyleOption(&option);
    option.text.clear();
    option.icon = {};
    QPainter painter(this);
    style()->drawComplexControl(QStyle::CC_ToolButton, &option, &painter, this);
    const Theme &theme = currentTheme();
    icon().paint(&painter, QRect(Spacing::control, 0, kIcon, height()), Qt::AlignCenter, QIcon::Normal,
                 isChecked() ? QIcon::On : QIcon::Off);
    const bool fits = QFontMetrics(textFont()).horizontalAdvance(text()) <= kCaption;
    painter.setFont(textFont(fits ? TextSize::Normal : TextSize::Small));
    painter.setPen(isChecked() ? theme.onAccent : theme.text);
    painter.drawText(QRect(kTextLeft, 0, kCaption, height()), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextWordWrap,
                     text());
    painter.setFont(textFont(TextSize::Small));
    painter.setPen(isChecked() ? theme.onAccent : theme.dim);
    painter.drawText(rect().adjusted(0, 0, -Spacing::control, 0), Qt::AlignVCenter | Qt::AlignRight, m_key);
}
