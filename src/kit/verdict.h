#pragma once

#include <QString>

#include <optional>

/// What a judgement comes to. Incomplete: nothing faulty, but something that has a reference gave no reading.
enum class Verdict
{
    None,
    Pass,
    Incomplete,
    Fail
};

/// The word for a verdict in scripts: "none", "pass", "incomplete", "fail".
QString word(Verdict verdict);

/// The limits of a deviation in per cent: a fault is a deviation at or beyond either limit.
struct Rule
{
    std::optional<double> lowest = {};
    std::optional<double> highest = {};

    static constexpr Rule within(double percent) { return {-percent, percent}; }
    static constexpr Rule tenPercent() { return within(10); }
    static constexpr Rule ceiling() { return {{}, 0.0}; }

    friend bool operator==(const Rule &, const Rule &) = default;
};

/// The verdict on a deviation; without one the thing was not measured.
Verdict judged(std::optional<double> deviation, const Rule &rule);

/// The verdict on the whole: a fault outweighs a gap, a gap outweighs what passed.
Verdict worst(Verdict one, Verdict other);
