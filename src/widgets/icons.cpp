#include "icons.h"

#include "theme.h"

#include <QDir>
#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

static constexpr auto kFolder = ":/icons/"_L1;

static QByteArray drawing(QStringView name)
{
    QFile file(kFolder + name.toString() + ".svg"_L1);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

static QPixmap rendered(QByteArray svg, const QColor &colour, int side)
{
    QSvgRenderer renderer(svg.replace("currentColor", colour.name().toLatin1()));
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    return pixmap;
}

QIcon lineIcon(QStringView name, const QColor &colour)
{
    QIcon icon;
    const QByteArray svg = drawing(name);
    if (svg.isEmpty())
        return icon;
    for (const int side : {16, 20, 24, 32, 48, 64}) {
        icon.addPixmap(rendered(svg, colour, side));
        icon.addPixmap(rendered(svg, currentTheme().border, side), QIcon::Disabled);
    }
    return icon;
}

QIcon lineIcon(QStringView name)
{
    return lineIcon(name, currentTheme().text);
}

QStringList lineIconNames()
{
    QStringList names = QDir(kFolder).entryList({u"*.svg"_s}, QDir::Files, QDir::Name);
    names.removeOne(u"prelt.svg"_s);
    for (QString &name : names)
        name.chop(4);
    return names;
}

QIcon programIcon()
{
    QIcon icon;
    const QByteArray svg = drawing(u"prelt");
    for (const int side : {16, 24, 32, 48, 64, 128, 256})
        icon.addPixmap(rendered(svg, Qt::black, side));
    return icon;
}
