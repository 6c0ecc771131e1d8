#pragma once

#include "gridcolumn.h"

#include <array>

/// The table of findings: of the survey that runs, and of one from the journal.
inline constexpr std::array kFindingColumns = {
    GridColumn{u"Veredito", u"Veredito", ColumnKind::Verdict},
    GridColumn{u"Achado", u"Achado", ColumnKind::Name},
    GridColumn{u"Leitura", u"Leitura", ColumnKind::Number},
    GridColumn{u"REF", u"Referência", ColumnKind::Number},
    GridColumn{u"PORC", u"Desvio", ColumnKind::Deviation},
    GridColumn{u"Telas", u"Telas"},
    GridColumn{u"Fonte", u"Fonte"},
    GridColumn{u"Linha", u"Linha da resposta"},
};
