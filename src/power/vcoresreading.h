#pragma once

#include "railreading.h"

/// The core rails of processor, graphics and storage.
const RailScreenTraits &vcoresTraits();

/// An entry of the list of chips.
struct ChipChoice
{
    QStringView entry;
    QStringView chip; ///< part of the chip's name; empty: every rail
};

std::span<const ChipChoice> chipChoices();
