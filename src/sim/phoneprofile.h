#pragma once

#include "result.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

/// What a simulated phone answers and how it misbehaves.
struct PhoneProfile
{
    QString model;       ///< one of the nine names
    QString modelNumber; ///< what it says of itself ("A1660"), or a whole other answer to the model query
    QString serial;      ///< of its board; empty: it tells none
    QMap<QString, QString>
        rails; ///< value token by output label ("BIST ldo2:"), "timeout" among them; no entry: no line
    bool splitPrompt = false;
    std::optional<qsizetype> dropAt; ///< the line goes dead after so many bytes of a reply
    bool silent = false;
    bool crlf = false;
    bool garbage = false; ///< noise on the line, between the lines of a reply
    bool touchOn = false; ///< the supply of the touch controller, off after a start
    bool wornBattery = false;
    bool portChipAnswers = true;
    QStringList broken = {};   ///< parts that do not answer, by their faults: "i2c1:75", "radio0", "nand"
    QStringList radiosOn = {}; ///< by the first word of their commands
};

/// The profile of a text "MODEL[,fault…]" such as "IP 7,ldo2=1200,crlf". Trouble names the part that is not known
/// and lists what is.
Result<PhoneProfile> profileFor(const QString &text);

/// The faults that can be named, for a help text; rails and devices differ from model to model.
QString faultHelp();

/// What a command changes in the phone once it is answered.
void obey(PhoneProfile &profile, const QByteArray &command);

/// The whole answer to a command line: echo, body and, unless the phone falls silent, the prompt, in bytes.
QByteArray answer(const PhoneProfile &profile, const QByteArray &command);
