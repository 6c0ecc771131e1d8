#include "terminalboxes.h"

#include "terminal.h"

void TerminalBoxes::message(const Trouble &trouble)
{
    m_shown.append(trouble.what);
    printError(oneLine(trouble, m_language));
}

void TerminalBoxes::ask(const Question &question, std::function<void(Answer)> answered)
{
    m_shown.append({{}, {question.title, question.text}});
    printError(oneLine({m_shown.last()}, m_language));
    answered(question.choices == Question::Choices::Ok ? Answer::Ok : Answer::Yes);
}

void TerminalBoxes::input(const Question &question, const QString &proposal,
                          std::function<void(const QString &)> answered)
{
    m_shown.append({{}, {question.title, question.text}});
    answered(proposal);
}
