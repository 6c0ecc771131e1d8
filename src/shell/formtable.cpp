#include "formtable.h"

#include "acorn.h"
#include "bateria.h"
#include "buckldo.h"
#include "buckteste.h"
#include "chestnut.h"
#include "displays.h"
#include "i2c.h"
#include "ic.h"
#include "journalform.h"
#include "master.h"
#include "nand.h"
#include "outros.h"
#include "pmu.h"
#include "referencias.h"
#include "rfs.h"
#include "rfs_esq.h"
#include "survey.h"
#include "tigris.h"
#include "tristar.h"
#include "vcores.h"
#include "zajustes.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

template <typename T>
ScreenForm *make(Session &session)
{
    return new T(session);
}

struct FormEntry
{
    QLatin1StringView name;
    ScreenForm *(*make)(Session &session);
};

constexpr std::array kForms = {
    FormEntry{"Survey"_L1, make<Survey>},
    FormEntry{"BuckLdo"_L1, make<BuckLdo>},
    FormEntry{"VCores"_L1, make<VCores>},
    FormEntry{"PMU"_L1, make<PMU>},
    FormEntry{"BuckTeste"_L1, make<BuckTeste>},
    FormEntry{"Tristar"_L1, make<Tristar>},
    FormEntry{"Tigris"_L1, make<Tigris>},
    FormEntry{"Acorn"_L1, make<Acorn>},
    FormEntry{"Chestnut"_L1, make<Chestnut>},
    FormEntry{"Bateria"_L1, make<Bateria>},
    FormEntry{"IC"_L1, make<IC>},
    FormEntry{"Master"_L1, make<Master>},
    FormEntry{"zAjustes"_L1, make<zAjustes>},
    FormEntry{"I2C"_L1, make<I2C>},
    FormEntry{"Displays"_L1, make<Displays>},
    FormEntry{"RFs"_L1, make<RFs>},
    FormEntry{"RFs_Esq"_L1, make<RFs_Esq>},
    FormEntry{"Nand"_L1, make<Nand>},
    FormEntry{"Outros"_L1, make<Outros>},
    FormEntry{"Journal"_L1, make<Journal>},
    FormEntry{"Referencias"_L1, make<Referencias>},
};

} // namespace

ScreenForm *makeForm(const QString &name, Session &session)
{
    const auto found = std::ranges::find_if(kForms, [&name](const FormEntry &row) { return row.name == name; });
    return found == kForms.end() ? nullptr : found->make(session);
}
