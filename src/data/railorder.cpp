#include "railorder.h"

#include "numbertext.h"

#include <algorithm>
#include <cmath>

namespace {

using Comparison = int (*)(const RailRow &, const RailRow &);

template <QString RailRow::*field>
int byText(const RailRow &left, const RailRow &right)
{
    return compareAsStore(left.*field, right.*field);
}

bool hasReading(const RailRow &row)
{
    return !row.leitura.isEmpty() && !row.leitura.endsWith(u'*');
}

int deviationRank(const RailRow &row)
{
    if (!hasReading(row))
        return 2;
    return row.porc.isEmpty() ? 1 : 0;
}

double magnitude(const RailRow &row)
{
    return hasReading(row) ? std::abs(leadingNumber(row.porc)) : 0;
}

int byDeviation(const RailRow &left, const RailRow &right)
{
    if (const int ranks = deviationRank(left) - deviationRank(right); ranks != 0)
        return ranks;
    return (magnitude(left) < magnitude(right)) - (magnitude(left) > magnitude(right));
}

int byId(const RailRow &left, const RailRow &right)
{
    return (left.id > right.id) - (left.id < right.id);
}

struct Order
{
    RailOrder order;
    Comparison first = nullptr;
    Comparison second = byId;
};

constexpr Order kOrders[] = {
    {RailOrder::Orig, byText<&RailRow::orig>},
    {RailOrder::ModeloOrig, byText<&RailRow::modelo>, byText<&RailRow::orig>},
    {RailOrder::CiOrig, byText<&RailRow::ci>, byText<&RailRow::orig>},
    {RailOrder::PorcDescending, byDeviation, byText<&RailRow::orig>},
    {RailOrder::Malha, byText<&RailRow::malha>},
    {RailOrder::ModeloMalha, byText<&RailRow::modelo>, byText<&RailRow::malha>},
    {RailOrder::CiMalha, byText<&RailRow::ci>, byText<&RailRow::malha>},
};

bool isBefore(const Order &order, const RailRow &left, const RailRow &right)
{
    for (const Comparison compare : {order.first, order.second, Comparison(byId)})
        if (const int outcome = compare(left, right); outcome != 0)
            return outcome < 0;
    return false;
}

} // namespace

/// A to Z only, as the store folds letters.
static char16_t folded(QChar letter)
{
    const char16_t code = letter.unicode();
    return code >= u'A' && code <= u'Z' ? static_cast<char16_t>(code + (u'a' - u'A')) : code;
}

// The store compares UTF-8 bytes: they order as the code points do, so halves of a pair come after all that is whole.
int compareAsStore(const QString &left, const QString &right)
{
    const auto [one, other] = std::ranges::mismatch(left, right, {}, folded, folded);
    if (one == left.end() || other == right.end())
        return (one != left.end()) - (other != right.end());
    if (const int pairs = one->isSurrogate() - other->isSurrogate(); pairs != 0)
        return pairs;
    return folded(*one) - folded(*other);
}

bool precedes(const RailRow &left, const RailRow &right, RailOrder order)
{
    return isBefore(*std::ranges::find(kOrders, order, &Order::order), left, right);
}

QList<RailRow> sorted(QList<RailRow> rows, RailOrder order)
{
    std::ranges::stable_sort(
        rows, [order](const RailRow &left, const RailRow &right) { return precedes(left, right, order); });
    return rows;
}
