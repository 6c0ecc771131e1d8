#pragma once

#include "notice.h"

#include <QList>

#include <utility>
#include <variant>

/// Something that went wrong and that a person can act on: what happened, and the steps that may mend it.
struct Trouble
{
    Notice what;
    QList<Notice> remedies = {};

    friend bool operator==(const Trouble &, const Trouble &) = default;
};

/// A value, or the trouble that kept it from being made.
template <typename T>
class [[nodiscard]] Result
{
public:
    Result(T value) : m_outcome(std::in_place_index<0>, std::move(value)) {}
    Result(Trouble trouble) : m_outcome(std::in_place_index<1>, std::move(trouble)) {}

    explicit operator bool() const { return m_outcome.index() == 0; }
    const T &operator*() const { return std::get<0>(m_outcome); }
    T &operator*() { return std::get<0>(m_outcome); }
    const T *operator->() const { return &std::get<0>(m_outcome); }
    T *operator->() { return &std::get<0>(m_outcome); }
    const Trouble &trouble() const { return std::get<1>(m_outcome); }

private:
    std::variant<T, Trouble> m_outcome;
};

/// The value of a `Result` that only says that something was done.
struct Done
{
};
