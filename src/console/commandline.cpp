#include "commandline.h"

#include "commanddelegate.h"
#include "plaintext.h"

#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QScreen>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QWheelEvent>

#include <algorithm>

using namespace Qt::StringLiterals;

static constexpr int kEntriesSeen = 20;

CommandLine::CommandLine(const QString &name, QWidget *parent)
    : QComboBox(parent), m_model(new QStandardItemModel(this))
{
    setObjectName(name);
    setEditable(true);
    setInsertPolicy(NoInsert);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMaxVisibleItems(kEntriesSeen);
    setModel(m_model);
    setItemDelegate(new CommandDelegate(this));
    auto *completer = new QCompleter(m_model, this);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    completer->setMaxVisibleItems(kEntriesSeen);
    completer->popup()->setItemDelegate(new CommandDelegate(completer));
    setCompleter(completer);
    for (QObject *keyReceiver : {static_cast<QObject *>(lineEdit()), static_cast<QObject *>(completer->popup())})
        keyReceiver->installEventFilter(this);
    // The box would give a typed command the letter case that the list has for it.
    disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
    connect(lineEdit(), &QLineEdit::returnPressed, this, &CommandLine::sendWanted);
}

void CommandLine::setCommands(const QList<CommandRow> &commands, Language language)
{
    const QString typed = currentText();
    const auto column = static_cast<std::size_t>(language) - 1;
    m_model->clear();
    for (const CommandRow &command : commands) {
        auto *item = new QStandardItem(command.comando);
        item->setData(column < command.info.size() ? command.info[column] : QString(), CommandDelegate::Description);
        item->setToolTip(plainToolTip(item->data(CommandDelegate::Description).toString()));
        m_model->appendRow(item);
    }
    setCurrentIndex(-1);
    setEditText(typed);
}

/// Esc closes the list that is open; no shortcut of the window takes it before.
bool CommandLine::eventFilter(QObject *watched, QEvent *event)
{
    QWidget *popup = completer()->popup();
    if (event->type() == QEvent::ShortcutOverride && popup->isVisible() &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape)
        event->accept();
    if (event->type() == QEvent::Show && watched == popup)
        widen(*popup);
    return QComboBox::eventFilter(watched, event);
}

/// As wide as the longest row needs, as far as the screen goes.
void CommandLine::widen(QWidget &popup) const
{
    const auto *list = static_cast<QAbstractItemView *>(&popup);
    const int wanted = list->sizeHintForColumn(0) + list->verticalScrollBar()->sizeHint().width();
    const int room = popup.screen()->availableGeometry().right() - popup.x();
    popup.resize(std::max(popup.width(), std::min(wanted, room)), popup.height());
}

void CommandLine::keyPressEvent(QKeyEvent *event)
{
    const bool plain = event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::KeypadModifier;
    if (plain && event->key() == Qt::Key_Up)
        emit olderWanted();
    else if (plain && event->key() == Qt::Key_Down)
        emit newerWanted();
    else
        QComboBox::keyPressEvent(event);
}

/// A wheel that passes by must not change the command.
void CommandLine::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}
