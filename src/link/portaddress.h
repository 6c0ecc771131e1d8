#pragma once

#include <QString>

/// The highest port number that is accepted, though more are listed.
inline constexpr int kHighestPort = 16;

/// What a person typed for a port.
struct PortAddress
{
    enum class Kind
    {
        None,          ///< nothing that names a port
        Number,        ///< 1 to 16
        NumberTooHigh, ///< a number above 16
        Path,          ///< a device by its path
        Simulated,     ///< a simulated phone
    };

    Kind kind = Kind::None;
    int number = 0;    ///< of the kind `Number`
    QString text = {}; ///< the path, or the phone's description behind "sim:"

    friend bool operator==(const PortAddress &, const PortAddress &) = default;
};

/// Reads "3", "COM3", "/dev/ttyUSB0" or "sim:IP 7,ldo2=off"; blanks around it and the case of "COM" and "sim" do not
/// matter.
PortAddress portAddress(const QString &typed);
