#pragma once

#include "catalogue.h"

/// The reference data names its sources by caption keys, what was recorded here adds figures behind a comma; a source
/// of the technician's own is shown as it is.
inline QString sourceText(const QString &source, Language language)
{
    if (const QString known = caption(source, language); !known.isEmpty())
        return known;
    const QString key = source.section(u',', 0, 0);
    const QString known = caption(key, language);
    return known.isEmpty() ? source : known + source.sliced(key.size());
}
