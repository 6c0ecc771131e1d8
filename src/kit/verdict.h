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

/// What a deviation that equals its limit is.
enum class AtLimit
{
    Fault,
    Good
};

/// The limits of a deviation in per cent: a fault is a deviation beyond either limit, and at it unless told otherwise.
struct Rule
{
    std::optional<double> lowest = {};
    std::optional<double> highest = {};
    AtLimit atLimit = AtLimit::Fault;

    static constexpr Rule within(double percent) { return {-percent, percent}; }
    static constexpr Rule tenPercent() { return within(10); }
    static constexpr Rule ceiling() { return {{}, 0.0}; }
    static constexpr Rule above(double percent) { return {percent, {}}; }
    static constexpr Rule atLeast(double percent) { return {percent, {}, AtLimit::Good}; }

    friend bool operator==(const Rule &, const Rule &) = default;
};

/// The verdict on a deviation; without one the thing was not measured.
Verdict judged(std::optional<double> deviation, const Rule &rule);

/// The verdict on the whole: a fault outweighs a gap, a gap outweighs what passed.
Verdict worst(Verdict one, Verdict other);
