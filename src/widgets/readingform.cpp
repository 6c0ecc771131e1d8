#include "readingform.h"

#include "icons.h"
#include "plainlabel.h"
#include "theme.h"
#include "verdictbadge.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>

using namespace Qt::StringLiterals;

static constexpr int kBarWidth = 200;

QHBoxLayout *controlRow(QWidget *parent)
{
    auto *layout = new QHBoxLayout(parent);
    layout->setSpacing(Spacing::control);
    if (parent)
        layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

QVBoxLayout *controlColumn(QWidget *parent)
{
    auto *layout = new QVBoxLayout(parent);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Spacing::unit);
    return layout;
}

QVBoxLayout *pageColumn(QWidget *screen)
{
    auto *layout = new QVBoxLayout(screen);
    layout->setContentsMargins(Spacing::control, Spacing::control, Spacing::control, Spacing::control);
    layout->setSpacing(Spacing::control);
    return layout;
}

static QHBoxLayout *choiceRow(const QList<QWidget *> &choices)
{
    auto *row = controlRow();
    row->setSpacing(Spacing::group);
    for (QWidget *choice : choices) {
        if (choice)
            row->addWidget(choice);
        else
            row->addStretch();
    }
    return row;
}

/// What stands below must not move under the pointer when the hint goes.
static void keepPlace(QLabel &hint)
{
    QSizePolicy policy = hint.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    hint.setSizePolicy(policy);
    hint.setMinimumHeight(hint.fontMetrics().height());
}

void ReadingForm::layOut(const Parts &parts)
{
    auto *layout = pageColumn(this);
    layout->addLayout(headRow(parts.buttons));
    layout->addLayout(choiceRow(parts.choices));
    layout->addWidget(m_hint = named(new PlainLabel, u"lbDica"_s));
    keepPlace(*m_hint);
    layout->addWidget(parts.body, 1);
    layout->addLayout(noteRow(parts));
    connect(&screen().session(), &Session::statusChanged, this, &ReadingForm::paintHint);
}

QHBoxLayout *ReadingForm::headRow(const QList<QWidget *> &buttons)
{
    m_title = named(new PlainLabel, u"lbTitulo"_s);
    m_title->setWordWrap(true); // rather two lines than a window that must grow
    m_badge = named(new VerdictBadge, u"Veredito"_s);
    auto *row = controlRow();
    row->setSpacing(Spacing::group);
    row->addWidget(m_badge);
    row->addWidget(m_title, 1);
    row->addStretch();
    for (QWidget *button : buttons)
        row->addWidget(button);
    return row;
}

QHBoxLayout *ReadingForm::noteRow(const Parts &parts)
{
    auto *note = named(new PlainLabel, parts.note);
    note->setWordWrap(true);
    note->setFont(textFont(TextSize::Small));
    m_lbBarra = new PlainLabel;
    m_barra = named(new QProgressBar, u"Barra"_s);
    m_barra->setMinimumWidth(kBarWidth);
    auto *frame = named(new QWidget, u"FrameVCore"_s);
    auto *progress = controlRow(frame);
    progress->addWidget(m_lbBarra);
    progress->addWidget(m_barra);
    auto *row = controlRow();
    row->addWidget(note, 1);
    row->addWidget(frame);
    if (parts.report)
        row->addWidget(parts.report);
    return row;
}

QPushButton *ReadingForm::readButton(const QString &name)
{
    m_read = named(new QPushButton, name);
    m_read->setProperty("primary", true);
    // A button's own shortcut is lost with every new caption.
    connect(new QShortcut(Qt::Key_F5, this), &QShortcut::activated, m_read, &QPushButton::click);
    return m_read;
}

void ReadingForm::Traducao_Form()
{
    m_lbBarra->setText(text(u"Realizando Leitura..."));
    m_barra->setAccessibleName(text(u"Realizando Leitura..."));
    m_badge->setLanguage(language());
    if (m_read) {
        m_read->setIcon(lineIcon(u"read", &Theme::onAccent));
        m_read->setAccessibleName(text(u"Executar Leitura"));
    }
    paintHint();
}

void ReadingForm::paintPanel()
{
    ScreenForm::paintPanel();
    m_title->setText(screen().panel().title);
    m_badge->setPanel(screen().panel());
    paintHint();
}

/// What is to be done next, or why what is seen is not what the phone says now.
QStringView ReadingForm::hintKey() const
{
    const Session &session = screen().session();
    if (screen().hasReading())
        return session.isConnected() ? QStringView() : u"Última leitura mantida na tela";
    if (session.Status() == "2"_L1)
        return u"Aguarde...";
    if (!session.isConnected())
        return u"DICA_CONECTAR";
    return session.isModelKnown() ? readHint() : u"Selecione o modelo do dispositivo";
}

void ReadingForm::paintHint()
{
    const bool reading = screen().panel().fields.value(u"FrameVCore"_s).visible.value_or(false);
    QStringList hints{ownHint()};
    const bool isToldAlready = !screen().hasReading() && !hints.front().isEmpty();
    const QStringView key = reading || isToldAlready ? QStringView() : hintKey();
    if (!key.isEmpty())
        hints.append(text(key));
    hints.removeAll(QString());
    m_hint->setText(hints.join(u"   "_s));
    m_hint->setVisible(!hints.isEmpty());
}
