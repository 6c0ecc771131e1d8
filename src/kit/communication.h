#pragma once

#include "language.h"
#include "panel.h"

/// Whether a part of the board answered.
struct Communication
{
    QString what;
    bool answers = false;
    bool cut = false;
    QString line = {}; ///< of the reply
    Language language = Language::Portuguese;
};

/// "COMUNICAÇÃO OK" or "COMUNICAÇÃO OFF" in the user's language.
QString communicationText(bool answers, Language language);

/// A reply as it is shown: without the line ends before its first word.
QString shownReply(const QString &reply);

/// Shows the mark of the answer and judges it. What was cut before its end is said to be, and counts as not
/// measured.
void addCommunication(Panel &panel, const Communication &communication);

/// A fact of the reading; one with a verdict is judged.
void addFact(Panel &panel, const Judgement &fact);

void hideMarks(Panel &panel);
