#pragma once

#include "exitcode.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <optional>
#include <variant>

/// The bytes of a saved reply; "-" is standard input, which may be waited for as long as `patience` says. Else the code
/// to end with; why was printed.
std::variant<QByteArray, ExitCode> readReply(const QString &path, std::optional<std::chrono::seconds> patience);
