#pragma once

#include "language.h"
#include "result.h"

#include <functional>

enum class Answer
{
    Ok,
    Yes,
    No,
    Cancel
};

/// A question with its choices, in the user's language.
struct Question
{
    enum class Choices
    {
        Ok,
        YesNo,
        YesNoCancel
    };

    QString title;
    QString text;
    Choices choices = Choices::YesNo;
    Answer preset = Answer::Yes; ///< of a yes or no: what the Enter key gives
};

/// How the program speaks to a person: real dialogs in the window, lines in the terminal, a script in the tests.
/// Nothing here waits; answers come by callback.
class Boxes
{
public:
    virtual ~Boxes() = default;

    /// Shows a message of the catalogue, with what may help. A notice without a key is a box of its own: title and
    /// text are its arguments.
    virtual void message(const Trouble &trouble) = 0;
    virtual void ask(const Question &question, std::function<void(Answer)> answered) = 0;
    /// Asks for a line of text, with a proposal; a null answer was cancelled.
    virtual void input(const Question &question, const QString &proposal,
                       std::function<void(const QString &)> answered) = 0;
};

/// How the program opens an address or the path of a document: exactly the text that it is given.
using Opener = std::function<void(const QString &address)>;
