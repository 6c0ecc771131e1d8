#pragma once

#include "screenform.h"

/// The form of a screen, or nothing while the program has none of that name.
ScreenForm *makeForm(const QString &name, Session &session);
