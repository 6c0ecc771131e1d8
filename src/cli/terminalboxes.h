#pragma once

#include "boxes.h"

#include <optional>

/// Messages as lines on standard error; questions answer themselves with Yes. Both are kept for the JSON.
class TerminalBoxes : public Boxes
{
public:
    explicit TerminalBoxes(Language language) : m_language(language) {}

    void setLanguage(Language language) { m_language = language; }
    /// What may help with every box from now on.
    void setRemedy(const Notice &remedy) { m_remedy = remedy; }
    void message(const Trouble &trouble) override;
    void ask(const Question &question, std::function<void(Answer)> answered) override;
    void input(const Question &question, const QString &proposal,
               std::function<void(const QString &)> answered) override;

    const QList<Notice> &shown() const { return m_shown; }

private:
    void tell(Trouble trouble);

    Language m_language;
    QList<Notice> m_shown;
    std::optional<Notice> m_remedy;
};
