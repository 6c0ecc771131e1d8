#include "windowboxes.h"

#include "catalogue.h"
#include "icons.h"
#include "plaintext.h"
#include "theme.h"

#include <QInputDialog>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTextEdit>

#include <algorithm>
#include <cmath>
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

namespace {

constexpr int kTextWidth = 480;
constexpr int kTextHeight = 400;
/// What a line of a box holds at least.
constexpr qsizetype kLongestWord = 50;

bool hasLongWord(const QString &text)
{
    static const QRegularExpression kBlank(u"\\s"_s);
    return std::ranges::any_of(text.split(kBlank), [](const QString &word) { return word.size() > kLongestWord; });
}

/// The text of a box with its lines broken anywhere.
QTextEdit *brokenText(const QString &text)
{
    auto *view = new QTextEdit;
    view->setObjectName(u"BoxText"_s);
    view->setReadOnly(true);
    view->setFocusPolicy(Qt::ClickFocus); // the buttons keep the focus
    view->setFrameShape(QFrame::NoFrame);
    view->viewport()->setAutoFillBackground(false);
    view->setStyleSheet(u"QTextEdit { background: transparent; border: none; padding: 0; }"_s);
    view->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    view->setPlainText(text);
    view->document()->setDocumentMargin(0);
    view->document()->setTextWidth(kTextWidth);
    view->setFixedSize(kTextWidth,
                       std::min(kTextHeight, static_cast<int>(std::ceil(view->document()->size().height()))));
    return view;
}

/// A label cuts off a word that is wider than it, an address for one. What is told can be copied.
void showWhole(QMessageBox &box)
{
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *label = box.findChild<QLabel *>(u"qt_msgbox_label"_s);
    if (!label || !hasLongWord(box.text()))
        return;
    delete box.layout()->replaceWidget(label, brokenText(box.text()));
    label->hide();
}

} // namespace

QMessageBox *WindowBoxes::messageBox(const Trouble &trouble) const
{
    const Message shown = boxMessage(trouble.what, m_language());
    QStringList lines = shown.lines;
    for (const Notice &remedy : trouble.remedies)
        lines += boxMessage(remedy, m_language()).lines;
    QMessageBox *box = plainBox(shown.title.trimmed(), lines.join(u'\n'), QMessageBox::Ok, m_parent);
    box->setIconPixmap(boxPicture(shown.icon));
    showWhole(*box);
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
    QMessageBox *box = plainBox(question.title, question.text, buttonsOf(question.choices), m_parent);
    box->setIconPixmap(boxPicture(asks ? MessageIcon::Question : MessageIcon::Information));
    showWhole(*box);
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
        box->setLabelText(u""_s); // makes the label
        auto *label = box->findChild<QLabel *>();
        label->setTextFormat(Qt::PlainText);
        label->setMaximumWidth(kTextWidth);
        label->setWordWrap(true);
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
