#include "formtable.h"

#include "buckldo.h"

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
    FormEntry{"BuckLdo"_L1, make<BuckLdo>},
};

} // namespace

ScreenForm *makeForm(const QString &name, Session &session)
{
    const auto found = std::ranges::find_if(kForms, [&name](const FormEntry &row) { return row.name == name; });
    return found == kForms.end() ? nullptr : found->make(session);
}
