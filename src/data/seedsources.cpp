#include "seedsources.h"

#include "queries.h"
#include "seedfilling.h"

using namespace Qt::StringLiterals;

static constexpr SeedFilling kFillings[] = {
    {"master"_L1, &kAddRailSource, "Modelo TIPO Orig Malha RefV confidence source"_L1},
    {"rf"_L1, &kAddRfSource, "Modelo Malha Componente Valor Tipo confidence source"_L1},
    {"i2c"_L1, &kAddSeedDeviceSource, "Aparelho i confidence source"_L1},
};

Result<Done> takeSeedSources(const Store &store)
{
    return fillFromSeeds(store, kFillings);
}
