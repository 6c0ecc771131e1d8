#include "icons.h"

#include "theme.h"

#include <QDir>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

static constexpr auto kFolder = ":/icons/"_L1;

static QString drawingFile(const QString &name)
{
    return kFolder + name + ".svg"_L1;
}

static QByteArray drawing(const QString &name)
{
    QFile file(drawingFile(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

namespace {

/// Draws an icon when it is first seen: a start that renders the whole set in every size keeps the window waiting.
class DrawingEngine : public QIconEngine
{
public:
    DrawingEngine(QString name, QColor Theme::*ink, QColor Theme::*inkWhenOn)
        : m_name(std::move(name)), m_ink(ink), m_inkWhenOn(inkWhenOn)
    {
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        const QString colour = (currentTheme().*inkFor(mode, state)).name();
        const QString key = u"%1 %2 %3x%4"_s.arg(m_name, colour).arg(size.width()).arg(size.height());
        QPixmap pixmap;
        if (!QPixmapCache::find(key, &pixmap)) {
            pixmap = rendered(size, colour);
            QPixmapCache::insert(key, pixmap);
        }
        return pixmap;
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        painter->drawPixmap(rect, pixmap(rect.size() * painter->device()->devicePixelRatio(), mode, state));
    }

    QIconEngine *clone() const override { return new DrawingEngine(*this); }

private:
    QColor Theme::*inkFor(QIcon::Mode mode, QIcon::State state) const
    {
        if (mode == QIcon::Disabled)
            return &Theme::border;
        return state == QIcon::On ? m_inkWhenOn : m_ink;
    }

    QPixmap rendered(const QSize &size, const QString &colour) const
    {
        QSvgRenderer renderer(drawing(m_name).replace("currentColor", colour.toLatin1()));
        renderer.setAspectRatioMode(Qt::KeepAspectRatio);
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        renderer.render(&painter);
        return pixmap;
    }

    QString m_name;
    QColor Theme::*m_ink;
    QColor Theme::*m_inkWhenOn;
};

} // namespace

static QIcon icon(const QString &name, QColor Theme::*ink, QColor Theme::*inkWhenOn)
{
    return QFile::exists(drawingFile(name)) ? QIcon(new DrawingEngine(name, ink, inkWhenOn)) : QIcon();
}

QIcon lineIcon(QStringView name, QColor Theme::*ink)
{
    return icon(name.toString(), ink, ink);
}

QIcon switchIcon(QStringView name)
{
    return icon(name.toString(), &Theme::text, &Theme::onAccent);
}

QIcon lineIcon(QStringView name)
{
    return lineIcon(name, &Theme::text);
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
    return lineIcon(u"prelt");
}
