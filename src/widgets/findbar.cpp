#include "findbar.h"

#include "catalogue.h"
#include "icons.h"
#include "plainlabel.h"
#include "plaintext.h"
#include "textpane.h"
#include "theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

using namespace Qt::StringLiterals;

static constexpr int kFieldWidth = 260;

FindBar::FindBar(const QString &what, QWidget *parent)
    : QWidget(parent),
      m_find(new QLineEdit),
      m_previous(button(u"btAnterior"_s)),
      m_next(button(u"btProximo"_s)),
      m_hit(new PlainLabel),
      m_copy(button(u"btCopiar"_s + what)),
      m_save(button(u"btSalvar"_s + what))
{
    m_find->setObjectName(u"txtLocalizar"_s);
    m_find->setMaximumWidth(kFieldWidth);
    m_find->setClearButtonEnabled(true);
    m_previous->setArrowType(Qt::UpArrow);
    m_next->setArrowType(Qt::DownArrow);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Spacing::unit);
    for (QWidget *part : {static_cast<QWidget *>(m_find), static_cast<QWidget *>(m_previous),
                          static_cast<QWidget *>(m_next), static_cast<QWidget *>(m_hit)})
        row->addWidget(part);
    row->addStretch();
    row->addWidget(m_copy);
    row->addWidget(m_save);
    connect(m_find, &QLineEdit::textChanged, this, &FindBar::findTyped);
    connect(m_find, &QLineEdit::returnPressed, this, [this] { find(Direction::Forwards); });
    connect(m_next, &QToolButton::clicked, this, [this] { find(Direction::Forwards); });
    connect(m_previous, &QToolButton::clicked, this, [this] { find(Direction::Backwards); });
    connect(m_copy, &QToolButton::clicked, this, &FindBar::copy);
    connect(m_save, &QToolButton::clicked, this, &FindBar::saveWanted);
}

QToolButton *FindBar::button(const QString &name)
{
    auto *button = new QToolButton;
    button->setObjectName(name);
    return button;
}

void FindBar::setPane(TextPane *pane)
{
    if (m_pane) {
        m_pane->mark({});
        disconnect(m_pane, nullptr, this, nullptr);
    }
    m_pane = pane;
    if (m_pane) {
        m_pane->mark(m_find->text());
        connect(m_pane, &QPlainTextEdit::textChanged, this, &FindBar::tellHits);
    }
    tellHits();
}

void FindBar::Traducao_Form(Language language, QStringView saveKey)
{
    m_language = language;
    struct Caption
    {
        QToolButton *button;
        QStringView icon;
        QStringView key;
    };
    for (const auto &[button, icon, key] : {Caption{m_copy, u"copy", u"Copiar"}, Caption{m_save, u"save", saveKey},
                                            Caption{m_next, u"", u"Próximo"}, Caption{m_previous, u"", u"Anterior"}}) {
        const QString text = caption(key, language);
        button->setToolTip(plainToolTip(text));
        button->setAccessibleName(text);
        if (!icon.isEmpty())
            button->setIcon(lineIcon(icon));
    }
    m_find->setPlaceholderText(caption(u"Localizar", language) + "  (Ctrl+F)"_L1);
    m_find->setAccessibleName(caption(u"Localizar", language));
    tellHits();
}

void FindBar::begin()
{
    const QString selected = m_pane ? m_pane->textCursor().selectedText() : QString();
    if (!selected.isEmpty() && !selected.contains(QChar::ParagraphSeparator))
        m_find->setText(selected);
    m_find->setFocus();
    m_find->selectAll();
}

void FindBar::find(Direction direction)
{
    if (!m_pane || m_find->text().isEmpty())
        return;
    const bool back = direction == Direction::Backwards;
    findAround(back ? QTextDocument::FindBackward : QTextDocument::FindFlags());
    tellHits();
}

/// The next hit, once around the text; without one the pane stays where it is.
void FindBar::findAround(QTextDocument::FindFlags flags)
{
    if (m_pane->find(m_find->text(), flags))
        return;
    QTextCursor edge = m_pane->textCursor();
    edge.movePosition(flags.testFlag(QTextDocument::FindBackward) ? QTextCursor::End : QTextCursor::Start);
    const QTextCursor hit = m_pane->document()->find(m_find->text(), edge, flags);
    if (!hit.isNull())
        m_pane->setTextCursor(hit);
}

/// What is typed is looked for at once, from where the hit of the text before begins.
void FindBar::findTyped(const QString &text)
{
    if (!m_pane)
        return;
    m_pane->mark(text);
    QTextCursor from = m_pane->textCursor();
    from.setPosition(from.selectionStart());
    m_pane->setTextCursor(from);
    if (!text.isEmpty())
        findAround({});
    tellHits();
}

void FindBar::tellHits()
{
    if (!m_pane || m_find->text().isEmpty())
        return m_hit->clear();
    const int hits = m_pane->hits();
    m_hit->setText(hits == 0 ? caption(u"Dados não localizados", m_language)
                             : caption(u"%1 de %2", m_language).arg(m_pane->chosenHit()).arg(hits));
}

void FindBar::copy()
{
    if (!m_pane)
        return;
    if (!m_pane->textCursor().hasSelection())
        m_pane->selectAll();
    m_pane->copy();
}
