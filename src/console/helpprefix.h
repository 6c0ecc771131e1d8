#pragma once

#include <QString>

/// The command that asks the phone for help on this one, or, of one that asks for help, the command it is about.
QString helpToggled(QString command);
