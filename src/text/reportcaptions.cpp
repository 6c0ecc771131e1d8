#include "captiontable.h"

// Columns: key, Portuguese, English, Spanish.
static constexpr CaptionRow kReportCaptions[] = {
    {u"No limite", u"No limite", u"Marginal", u"En el límite"},
    {u"Número de série", u"Número de série", u"Serial number", u"Número de serie"},
    {u"Data", u"Data", u"Date", u"Fecha"},
    {u"Observação", u"Observação", u"Note", u"Observación"},
    {u"Nada foi lido nem julgado.", u"Nada foi lido nem julgado.", u"Nothing was read or judged.",
     u"Nada se leyó ni se evaluó."},
    {u"Relatórios", u"Relatórios", u"Reports", u"Reportes"},
    {u"Salvar relatório como…", u"Salvar relatório como…", u"Save report as…", u"Guardar reporte como…"},
    {u"Serviço de relatórios", u"Serviço de relatórios", u"Report service", u"Servicio de reportes"},
    {u"vazio: o programa faz o PDF", u"vazio: o próprio programa faz o PDF", u"empty: the program makes the PDF itself",
     u"vacío: el propio programa hace el PDF"},
    {u"Nome ou empresa", u"Nome ou empresa", u"Name or company", u"Nombre o empresa"},
    {u"Logotipo", u"Logotipo", u"Logo", u"Logotipo"},
    {u"Procurar…", u"Procurar…", u"Browse…", u"Examinar…"},
    {u"Página %1 de %2", u"Página %1 de %2", u"Page %1 of %2", u"Página %1 de %2"},
};

CaptionTable reportCaptions()
{
    return kReportCaptions;
}
