#pragma once

#include "findingverdict.h"
#include "panel.h"

/// What a screen's judgement comes to. Marginal is what lies within the last fifth of a tolerance around the
/// reference; a limit that does not lie around it has no last fifth.
FindingVerdict findingVerdict(const Judgement &judgement);

/// How far the drawing of a deviation reaches, in per cent: the wider limit, which is drawn on both sides. None when
/// the reference itself is the limit.
std::optional<double> drawnTolerance(const std::optional<Rule> &rule);
