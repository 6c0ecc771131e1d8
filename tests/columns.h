#pragma once

#include <QTest>

/// Declares the columns of a table of cases, one name for each type.
template <typename... Types>
void columns(const char *const (&names)[sizeof...(Types)])
{
    const char *const *name = names;
    (QTest::addColumn<Types>(*name++), ...);
}
