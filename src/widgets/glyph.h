#pragma once

#include "catalogue.h"
#include "shapes.h"
#include "verdict.h"

Glyph glyphOf(Verdict verdict);

/// The word for a verdict in the user's language.
QString verdictCaption(Verdict verdict, Language language);
