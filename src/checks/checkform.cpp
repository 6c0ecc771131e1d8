#include "checkform.h"

#include "communication.h"
#include "marklabel.h"
#include "plainlabel.h"
#include "plaintext.h"
#include "theme.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>

#include <array>

using namespace Qt::StringLiterals;

/// With Alt: the digits, then the row of letters under them.
static constexpr QStringView kKeys = u"1234567890QWERTYUIOP";

CheckForm::CheckForm(std::unique_ptr<CheckScreen> screen, QWidget *parent)
    : ReadingForm(std::move(screen), parent), m_check(static_cast<CheckScreen &>(this->screen()))
{
    connect(new QShortcut(Qt::Key_F5, this), &QShortcut::activated, &m_check, [this] { m_check.read(); });
}

QPushButton *CheckForm::testButton(const QString &name)
{
    auto *button = named(new QPushButton, name);
    button->setMinimumHeight(Spacing::target);
    const QKeySequence keys(Qt::ALT | static_cast<Qt::Key>(kKeys[m_buttons++].unicode()));
    button->setToolTip(plainToolTip(keys.toString(QKeySequence::NativeText)));
    connect(new QShortcut(keys, this), &QShortcut::activated, button, [button] {
        button->setFocus(Qt::ShortcutFocusReason); // so that Tab goes on from here
        button->click();
    });
    return button;
}

void CheckForm::paintPanel()
{
    QWidget *const before = window()->focusWidget();
    ReadingForm::paintPanel();
    if (before && isAncestorOf(before) && !before->isEnabled()) {
        m_pressed = before;
        m_standIn = window()->focusWidget();
    }
    if (!m_pressed || !m_pressed->isEnabled())
        return;
    if (window()->focusWidget() == m_standIn) // else the person has moved on
        m_pressed->setFocus(Qt::OtherFocusReason);
    m_pressed.clear();
}

QWidget *CheckForm::column(const QList<QWidget *> &controls)
{
    auto *frame = new QWidget;
    auto *layout = new QVBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Spacing::control);
    for (QWidget *control : controls)
        layout->addWidget(control);
    layout->addStretch();
    return frame;
}

QLabel *CheckForm::largeLabel(const QString &name)
{
    auto *label = named(new PlainLabel, name);
    label->setFont(textFont(TextSize::Large));
    label->setWordWrap(true);
    return label;
}

QWidget *CheckForm::result(const QList<QWidget *> &above)
{
    auto *frame = new QWidget;
    auto *row = controlRow(frame);
    for (QWidget *control : above)
        row->addWidget(control);
    row->addWidget(markNamed(u"OK"_s, Verdict::Pass));
    row->addWidget(markNamed(u"NO"_s, Verdict::Fail));
    row->addWidget(largeLabel(u"lbStatus"_s), 1);
    row->addWidget(named(new PlainLabel, u"lbAguarde"_s));
    return frame;
}

/// Streamed text is appended, from its first word on; who has scrolled back is not pulled to the end.
static void append(QPlainTextEdit &box, const QString &streamed)
{
    const QString text = box.document()->isEmpty() ? shownReply(streamed) : streamed;
    QScrollBar &bar = *box.verticalScrollBar();
    const bool follows = bar.value() == bar.maximum();
    QTextCursor cursor(box.document());
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(QString(text).remove(u'\r'));
    if (follows)
        bar.setValue(bar.maximum());
}

static QPlainTextEdit *phoneText(const QString &name)
{
    auto *box = named(new QPlainTextEdit, name);
    box->setReadOnly(true);
    box->setTabChangesFocus(true);
    box->setFont(tabularFont(TextSize::Small));
    return box;
}

/// A text with its heading above it.
static QWidget *headed(const QString &name, QLabel *heading, QPlainTextEdit *box)
{
    auto *frame = named(new QWidget, name);
    auto *layout = new QVBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Spacing::unit);
    layout->addWidget(heading);
    layout->addWidget(box, 1);
    return frame;
}

QWidget *CheckForm::replyBox()
{
    m_lbDados = named(new PlainLabel, u"lbDispConectado"_s);
    m_lbDados->setWordWrap(true);
    m_txtDados = phoneText(u"txtDados"_s);
    connect(&m_check, &CheckScreen::replyGrew, m_txtDados, [this](const QString &text) { append(*m_txtDados, text); });
    return headed(u"FrameDados"_s, m_lbDados, m_txtDados);
}

QWidget *CheckForm::comparator()
{
    m_ldDispComparador = named(new PlainLabel, u"ldDispComparador"_s);
    m_txtComparador = phoneText(u"txtComparador"_s);
    QWidget *const frame = headed(u"FrameComparador"_s, m_ldDispComparador, m_txtComparador);
    frame->layout()->addWidget(named(new PlainLabel, u"lbIntegridade"_s));
    return frame;
}

QPushButton *CheckForm::comparatorButton()
{
    m_btComparador = named(new QPushButton, u"btComparador"_s);
    m_btComparador->setCheckable(true);
    connect(m_btComparador, &QPushButton::clicked, &m_check, &CheckScreen::btComparador_Click);
    return m_btComparador;
}

/// A label that is empty as long as there is nothing to say.
struct QuietLabel
{
    QLatin1StringView name;
    QStringView caption;
};

static constexpr std::array kQuietLabels = {
    QuietLabel{"lbStatus"_L1, u"Comunicação"},
    QuietLabel{"lbStatus2"_L1, u"Resultado do teste:"},
    QuietLabel{"lbStatius"_L1, u"Resultado do teste:"},
    QuietLabel{"lbAguarde"_L1, u"Estado"},
    QuietLabel{"lbResultado"_L1, u"Resultado do teste:"},
    QuietLabel{"lbIntegridade"_L1, u"Comparador"},
};

void CheckForm::Traducao_Form()
{
    ReadingForm::Traducao_Form();
    for (const QuietLabel &label : kQuietLabels)
        if (auto *found = findChild<QLabel *>(label.name))
            found->setAccessibleName(text(label.caption));
    if (m_txtDados) {
        m_lbDados->setText(text(u"Leitura do dispositivo conectado:"));
        m_txtDados->setAccessibleName(m_lbDados->text());
    }
    if (!m_txtComparador)
        return;
    m_ldDispComparador->setText(text(u"Comparador: (Dispositivos Gravados)"));
    m_txtComparador->setAccessibleName(m_ldDispComparador->text());
    m_btComparador->setText(text(u"Comparador"));
}
