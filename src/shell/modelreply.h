#pragma once

#include <QString>

/// What the phone's answer to the model query comes to.
struct ModelReply
{
    enum class Kind
    {
        NoRecord,      ///< no "#" or no "[": nothing to cut
        DriverMissing, ///< the phone cannot reach its own configuration
        NotANumber,    ///< the shell did not know the command, or the record is no "A" number
        Identified,
        UnknownNumber, ///< an "A" number that is in no table
    };

    Kind kind = Kind::NoRecord;
    QString record;
    QString model;

    friend bool operator==(const ModelReply &, const ModelReply &) = default;
};

/// The command that asks the phone for its regulatory model number.
inline constexpr QLatin1StringView kModelQuery{"syscfg print RMd#"};

/// Reads the console text that holds the answer to the model query.
ModelReply modelReply(const QString &console);
