#include "windowboxes.h"

#include "catalogue.h"
#include "icons.h"
#include "theme.h"

#include <QMessageBox>
#include <QPushButton>

#include <utility>

using namespace Qt::StringLiterals;

static QPixmap boxPicture(MessageIcon icon)
{
    static constexpr int kSide = 32;
    static constexpr QStringView kPictures[] = {u"", u"about", u"warning", u"help"};
    return lineIcon(kPictures[static_cast<std::size_t>(icon)], currentTheme().accent).pixmap(kSide);
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
        new QMessageBox(QMessageBox::NoIcon, shown.title.trimmed(), lines.join(u'\n'), QMessageBox::Ok, m_parent);
    box->setIconPixmap(boxPicture(shown.icon));
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
        auto *box = new QMessageBox(QMessageBox::NoIcon, question.title, question.text, buttons, m_parent);
        box->setTextFormat(Qt::PlainText);
        box->setIconPixmap(boxPicture(MessageIcon::Question));
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
