#pragma once

#include "phoneprofile.h"

#include <QStringList>

/// What a phone prints for "buckcheck N"; nothing for any other command line.
std::optional<QStringList> buckAnswer(const PhoneProfile &profile, const QString &line);
