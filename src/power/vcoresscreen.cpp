#include "vcoresscreen.h"

#include "vcoresreading.h"

#include <algorithm>

using namespace Qt::StringLiterals;

VCoresScreen::VCoresScreen(Session &session, QObject *parent) : RailGridScreen(session, vcoresTraits(), parent)
{
    connect(&session, &Session::statusChanged, this, &VCoresScreen::showState);
}

void VCoresScreen::cbICs_Click(int entry)
{
    const bool isEntry = entry >= 0 && entry < static_cast<int>(chipChoices().size());
    if (isEntry && session().isReady())
        showChip(entry);
}

void VCoresScreen::showChip(int entry)
{
    m_entry = entry;
    input().chip = chipChoices()[static_cast<std::size_t>(entry)].chip.toString();
    rebuild();
}

/// A chip is shown alone. A rail that the chosen chip hides cannot be shown beside it.
void VCoresScreen::goTo(const QString &what)
{
    const auto choice = std::ranges::find(chipChoices(), what, &ChipChoice::entry);
    if (choice != chipChoices().end())
        return showChip(static_cast<int>(std::distance(chipChoices().begin(), choice)));
    if (std::ranges::find(front().shown, what, &RailRow::malha) == front().shown.end())
        showChip(0);
    RailGridScreen::goTo(what);
}

/// Other readings are seen whole first.
void VCoresScreen::LimpaLeiturasExterno()
{
    showChip(0);
    RailGridScreen::LimpaLeiturasExterno();
}

QMap<QString, Field> VCoresScreen::state() const
{
    QStringList entries;
    for (const ChipChoice &choice : chipChoices())
        entries.append(choice.entry == u"IC's" ? caption(choice.entry) : choice.entry.toString());
    QMap<QString, Field> fields = RailGridScreen::state();
    fields[u"cbICs"_s] = {
        .text = entries.at(m_entry), .enabled = session().isReady() && !isReading(), .items = entries};
    return fields;
}
