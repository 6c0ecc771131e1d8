#pragma once

#include "catalogue.h"

/// The reference data names its sources by caption keys; a source of the technician's own is shown as it is.
inline QString sourceText(const QString &source, Language language)
{
    const QString known = caption(source, language);
    return known.isEmpty() ? source : known;
}
