#include "fmhelp.h"

#include "catalogue.h"
#include "plainlabel.h"
#include "readingform.h"
#include "textpane.h"
#include "theme.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextBlock>

using namespace Qt::StringLiterals;

fmHelp::fmHelp(Session &session, QWidget *parent)
    : QDialog(parent),
      m_screen(session),
      m_txtConsole(new TextPane(u"txtConsole"_s)),
      m_lbClick(named(new PlainLabel, u"lbClick"_s)),
      m_txt2(named(new QLineEdit, u"txt2"_s)),
      m_btAdd(named(new QPushButton, u"btAdd"_s))
{
    setObjectName(u"fmHelp"_s);
    resize(520, 560);
    auto *foot = controlRow();
    foot->addWidget(m_txt2, 1);
    foot->addWidget(m_btAdd);
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(Spacing::control);
    layout->addWidget(m_lbClick);
    layout->addWidget(m_txtConsole, 1);
    layout->addLayout(foot);
    m_btAdd->setAutoDefault(false);
    m_txtConsole->viewport()->installEventFilter(this);
    m_txtConsole->installEventFilter(this);
    m_txtConsole->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    connect(&m_screen, &fmHelpScreen::textChanged, this, [this] { m_txtConsole->replaceWith(m_screen.text()); });
    connect(&m_screen, &fmHelpScreen::commandAdded, this, &fmHelp::commandAdded);
    connect(m_txtConsole, &QPlainTextEdit::cursorPositionChanged, this, [this] { m_txt2->setText(lineAtCursor()); });
    connect(m_btAdd, &QPushButton::clicked, this, [this] { m_screen.btAdd_Click(m_txt2->text().trimmed()); });
    connect(&session, &Session::languageChanged, this, &fmHelp::Traducao_Form);
    Traducao_Form();
}

void fmHelp::begin(const QString &recorded)
{
    m_screen.showText(recorded);
    show();
    raise();
    activateWindow();
    m_screen.read();
}

QString fmHelp::lineAtCursor() const
{
    return m_txtConsole->textCursor().block().text().trimmed();
}

bool fmHelp::eventFilter(QObject *watched, QEvent *event)
{
    const bool isEnter = event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Return;
    const bool isDoubleClick = event->type() == QEvent::MouseButtonDblClick && watched == m_txtConsole->viewport();
    if ((isEnter || isDoubleClick) && !lineAtCursor().isEmpty()) {
        emit lineChosen(lineAtCursor());
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void fmHelp::Traducao_Form()
{
    const auto text = [this](QStringView key) { return caption(key, m_screen.session().language()); };
    setWindowTitle(text(u"Comandos") + " Help - Tavimo Prelt"_L1);
    m_lbClick->setText(text(u"Clique duplo para enviar texto ao campo comandos"));
    m_txtConsole->setAccessibleName(text(u"Comandos"));
    m_txt2->setAccessibleName(text(u"Novo Comando"));
    m_txt2->setPlaceholderText(text(u"Novo Comando"));
    m_btAdd->setText(text(u"Adicionar Comando"));
}
