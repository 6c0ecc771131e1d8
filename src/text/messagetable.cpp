#include "messagetable.h"

static constexpr QStringView kProduct = u"Tavimo Prelt";

static constexpr MessageRow kMessages[] = {
    {u"PRIMEIRO_LEITURA",
     {{{kProduct, u"Primeiro execute uma leitura", MessageIcon::None},
       {kProduct, u"First perform a read", MessageIcon::None},
       {kProduct, u"Primero realice una lectura", MessageIcon::None}}}},
};

std::span<const MessageRow> messageTable()
{
    return kMessages;
}
