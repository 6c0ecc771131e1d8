#pragma once

#include "buckldoscreen.h"
#include "phonebench.h"

#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

/// A saved reply that the tests of all screens over rails share.
inline QString savedReply(const QString &name)
{
    QFile file(QStringLiteral(PRELT_SOURCE_DIR "/tests/power/replies/") + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll()) : QString();
}

/// A screen over rails on a phone.
template <typename ScreenType = BuckLdoScreen>
struct RailBench : PhoneBench
{
    explicit RailBench(const QString &description) : PhoneBench(description)
    {
        screen = std::make_unique<ScreenType>(*session);
        screen->open();
    }

    void readKind(int kind)
    {
        screen->chooseKind(kind);
        screen->read();
        gatherReply();
        screen->TimerGrava_Timer();
    }
    Row shown(const QString &orig) const
    {
        const QList<Row> &rows = screen->panel().rows;
        const auto found = std::ranges::find_if(rows, [&](const Row &row) { return row.cell(u"Orig") == orig; });
        return found == rows.end() ? Row{} : *found;
    }
    /// A row as the store holds it.
    RailRow stored(const QString &model, int kind, const QString &orig)
    {
        const Result<Store> open = Store::open(configStore(folder.path()), Store::Access::Read, {});
        const QList<RailRow> rows = *railRows(*open, {model, kind});
        const auto found = std::ranges::find(rows, orig, &RailRow::orig);
        return found == rows.end() ? RailRow{} : *found;
    }

    std::unique_ptr<ScreenType> screen;
};
