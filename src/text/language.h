#pragma once

#include <QtGlobal>

/// The interface language as the store numbers it. Another value is possible (a damaged store): it has no texts.
enum class Language : quint8
{
    Portuguese = 1,
    English = 2,
    Spanish = 3
};
