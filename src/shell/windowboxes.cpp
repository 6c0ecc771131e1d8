#include "windowboxes.h"

#include "catalogue.h"

#include <QMessageBox>
#include <QPushButton>

#include <utility>

using namespace Qt::StringLiterals;

static QMessageBox::Icon boxIcon(MessageIcon icon)
{
    switch (icon) {
    case MessageIcon::Information:
        return QMessageBox::Information;
    case MessageIcon::Critical:
        return QMessageBox::Critical;
    case MessageIcon::Question:
        return QMessageBox::Question;
    case MessageIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

static Message boxMessage(const Notice &notice, Language language)
{
    if (notice.key.isEmpty())
        return {notice.arguments.value(0), {notice.arguments.value(1)}, MessageIcon::None};
    return message(notice, language).value_or(Message{u"Tavimo Prelt"_s, {notice.key}, MessageIcon::Information});
}

QMessageBox *WindowBoxes::messageBox(const Trouble &trouble) const
{
    const Message shown = boxMessage(trouble.what, m_language());
    QStringList lines = shown.lines;
    for (const Notice &remedy : trouble.remedies)
        lines += boxMessage(remedy, m_language()).lines;
    auto *box =
        new QMessageBox(boxIcon(shown.icon), shown.title.trimmed(), lines.join(u'\n'), QMessageBox::Ok, m_parent);
    box->setTextFormat(Qt::PlainText);
    return box;
}

void WindowBoxes::message(const Trouble &trouble)
{
    add([this, trouble] { return messageBox(trouble); });
}

static Answer answerOf(QMessageBox::StandardButton button)
{
    if (button == QMessageBox::Yes)
        return Answer::Yes;
    return button == QMessageBox::No ? Answer::No : Answer::Cancel;
}

void WindowBoxes::ask(const Question &question, std::function<void(Answer)> answered)
{
    add([this, question, answered = std::move(answered)] {
        const bool cancel = question.choices == Question::Choices::YesNoCancel;
        const auto buttons =
            QMessageBox::Yes | QMessageBox::No | (cancel ? QMessageBox::Cancel : QMessageBox::NoButton);
        auto *box = new QMessageBox(QMessageBox::Question, question.title, question.text, buttons, m_parent);
        box->setTextFormat(Qt::PlainText);
        box->button(QMessageBox::Yes)->setText(caption(u"Sim", m_language()));
        box->button(QMessageBox::No)->setText(caption(u"Não", m_language()));
        if (cancel)
            box->button(QMessageBox::Cancel)->setText(caption(u"Cancelar", m_language()));
        QObject::connect(box, &QMessageBox::finished, box,
                         [box, answered] { answered(answerOf(box->standardButton(box->clickedButton()))); });
        return box;
    });
}

void WindowBoxes::add(Opening open)
{
    m_waiting.push_back(std::move(open));
    openNext();
}

void WindowBoxes::openNext()
{
    if (m_open || m_waiting.empty() || !m_parent)
        return;
    m_open = true;
    const Opening open = std::exchange(m_waiting.front(), {});
    m_waiting.pop_front();
    QMessageBox *box = open();
    box->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(box, &QMessageBox::finished, m_parent, [this] {
        m_open = false;
        openNext();
    });
    box->open();
}
