#pragma once

#include <QStringView>

/// Where the phone's echo of a command stands in what was gathered. From there on it is the answer; what stands before
/// is another command's.
struct OwnEcho
{
    bool isFound = false;
    qsizetype begin = 0;
};

/// The echo is the command as a whole line, at the start of what came or directly behind a prompt; of several the last.
OwnEcho ownEcho(QStringView gathered, QStringView command);
