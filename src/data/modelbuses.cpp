#include "modelbuses.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// The buttons that a group of models changes, by the first characters of its name. The first row that fits decides.
struct ButtonRow
{
    QLatin1StringView models;
    std::array<BusButton, kBuses> buttons;
};

constexpr BusButton T = BusButton::Testable;
constexpr BusButton D = BusButton::Disabled;
constexpr BusButton H = BusButton::Hidden;

constexpr std::array kButtons = {
    ButtonRow{"IP 6"_L1, {T, T, T, H, H, H, H, H}}, ButtonRow{"IP 7 Plus"_L1, {T, T, T, D, T, D, H, H}},
    ButtonRow{"IP 7"_L1, {T, T, T, T, T, D, H, H}}, ButtonRow{"IP 8"_L1, {T, D, T, T, T, D, T, T}},
    ButtonRow{"IP X"_L1, {T, D, D, T, T, T, T, T}},
};

/// The parts that are likely to fail where a bus of a model has a silent device.
struct FailureRow
{
    QLatin1StringView model;
    int bus;
    QLatin1StringView text;
};

constexpr std::array kFailures = {
    FailureRow{"IP 6"_L1, 2, "J1110 - Flex Front Camera and Prox. Sensor Cable"_L1},
    FailureRow{"IP 6 Plus"_L1, 2, "J1110 - Flex Front Camera and Prox. Sensor Cable"_L1},
    FailureRow{"IP 7"_L1, 2, "J4503 - Flex Front Camera and Prox. Sensor Cable"_L1},
    FailureRow{"IP 7"_L1, 3, "Display\r\n- Codec Audio\r\n- ..."_L1},
    FailureRow{"IP 7"_L1, 4, "Flex Front Camera and Prox. Sensor Cable"_L1},
    FailureRow{"IP 7 Plus"_L1, 2, "J4503 - Flex Front Camera and Sensor Prox. Cable"_L1},
    FailureRow{"IP 7 Plus"_L1, 4, "Flex Front Camera and Sensor Prox. Cable"_L1},
    FailureRow{"IP 8"_L1, 1, "DOCK"_L1},
    FailureRow{"IP 8"_L1, 3, "DOCK"_L1},
    FailureRow{"IP 8 Plus"_L1, 3, "0X51 - Codec Audio"_L1},
};

} // namespace

BusButton busButton(const QString &model, int bus)
{
    const auto row =
        std::ranges::find_if(kButtons, [&](const ButtonRow &group) { return model.startsWith(group.models); });
    return row == kButtons.end() ? BusButton::Testable : row->buttons.at(static_cast<std::size_t>(bus));
}

QString likelyFailure(const QString &model, int bus)
{
    const auto row = std::ranges::find_if(
        kFailures, [&](const FailureRow &failure) { return failure.model == model && failure.bus == bus; });
    return row == kFailures.end() ? QString() : QString(row->text);
}
