#include "terminalboxes.h"

#include "terminal.h"

void TerminalBoxes::tell(Trouble trouble)
{
    m_shown.append(trouble.what);
    if (m_remedy)
        trouble.remedies.append(*m_remedy);
    printError(oneLine(trouble, m_language));
}

void TerminalBoxes::message(const Trouble &trouble)
{
    tell(trouble);
}

void TerminalBoxes::ask(const Question &question, std::function<void(Answer)> answered)
{
    tell({{{}, {question.title, question.text}}});
    answered(question.choices == Question::Choices::Ok ? Answer::Ok : Answer::Yes);
}

void TerminalBoxes::input(const Question &question, const QString &proposal,
                          std::function<void(const QString &)> answered)
{
    m_shown.append({{}, {question.title, question.text}});
    answered(proposal);
}
