#include "windowboxes.h"

#include "catalogue.h"
#include "icons.h"
#include "theme.h"

#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

#include <utility>

using namespace Qt::StringLiterals;

static QPixmap boxPicture(MessageIcon icon)
{
    static constexpr int kSide = 32;
    static constexpr QStringView kPictures[] = {u"", u"about", u"warning", u"help"};
    return lineIcon(kPictures[static_cast<std::size_t>(icon)], &Theme::accent).pixmap(kSide);
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

namespace {

struct AnswerButton
{
    QMessageBox::StandardButton button;
    Answer answer;
    QStringView key; ///< of its caption; empty: as the system words it
};

constexpr AnswerButton kAnswers[] = {{QMessageBox::Ok, Answer::Ok, u""},
                                     {QMessageBox::Yes, Answer::Yes, u"Sim"},
                                     {QMessageBox::No, Answer::No, u"Não"},
                                     {QMessageBox::Cancel, Answer::Cancel, u"Cancelar"}};

QMessageBox::StandardButtons buttonsOf(Question::Choices choices)
{
    using enum Question::Choices;
    const QMessageBox::StandardButtons yesNo = QMessageBox::Yes | QMessageBox::No;
    if (choices == Ok)
        return QMessageBox::Ok;
    return choices == YesNo ? yesNo : yesNo | QMessageBox::Cancel;
}

Answer answerOf(QMessageBox::StandardButton button)
{
    for (const AnswerButton &row : kAnswers)
        if (row.button == button)
            return row.answer;
    return Answer::Cancel;
}

} // namespace

QMessageBox *WindowBoxes::questionBox(const Question &question) const
{
    const bool asks = question.choices != Question::Choices::Ok;
    auto *box =
        new QMessageBox(QMessageBox::NoIcon, question.title, question.text, buttonsOf(question.choices), m_parent);
    box->setTextFormat(Qt::PlainText);
    box->setIconPixmap(boxPicture(asks ? MessageIcon::Question : MessageIcon::Information));
    for (const AnswerButton &row : kAnswers)
        if (QAbstractButton *button = box->button(row.button); button && !row.key.isEmpty())
            button->setText(caption(row.key, m_language()));
    if (question.preset == Answer::No)
        box->setDefaultButton(QMessageBox::No);
    return box;
}

void WindowBoxes::ask(const Question &question, std::function<void(Answer)> answered)
{
    add([this, question, answered = std::move(answered)] {
        QMessageBox *box = questionBox(question);
        QObject::connect(box, &QMessageBox::finished, box,
                         [box, answered] { answered(answerOf(box->standardButton(box->clickedButton()))); });
        return box;
    });
}

void WindowBoxes::input(const Question &question, const QString &proposal,
                        std::function<void(const QString &)> answered)
{
    add([this, question, proposal, answered = std::move(answered)] {
        auto *box = new QInputDialog(m_parent);
        box->setWindowTitle(question.title);
        box->setLabelText(question.text);
        box->setTextValue(proposal);
        box->setCancelButtonText(caption(u"Cancelar", m_language()));
        QObject::connect(box, &QInputDialog::finished, box, [box, answered](int result) {
            answered(result == QDialog::Accepted ? u""_s + box->textValue() : QString());
        });
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
    QDialog *box = open();
    box->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(box, &QDialog::finished, m_parent, [this] {
        m_open = false;
        openNext();
    });
    box->open();
}
