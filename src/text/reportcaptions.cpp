#include "captiontable.h"

// Columns: key, Portuguese, English, Spanish.
static constexpr CaptionRow kReportCaptions[] = {
    {u"No limite", u"No limite", u"Marginal", u"En el límite"},
    {u"Número de série", u"Número de série", u"Serial number", u"Número de serie"},
    {u"Data", u"Data", u"Date", u"Fecha"},
    {u"Observação", u"Observação", u"Note", u"Observación"},
    {u"Nada foi lido nem julgado.", u"Nada foi lido nem julgado.", u"Nothing was read or judged.",
     u"Nada se leyó ni se evaluó."},
    {u"Página %1 de %2", u"Página %1 de %2", u"Page %1 of %2", u"Página %1 de %2"},
};

CaptionTable reportCaptions()
{
    return kReportCaptions;
}
