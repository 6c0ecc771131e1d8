#include "photographer.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>

#include <cstdio>
#include <cstdlib>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int kWrongUsage = 2;

struct Wishes
{
    QString folder;
    QString only; ///< what a picture's name holds
};

Wishes wishesFrom(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Saves a picture of every screen on simulated phones."_s);
    parser.addHelpOption();
    parser.addPositionalArgument(u"OUT"_s, u"folder for the pictures"_s);
    parser.addOption({u"only"_s, u"only the pictures whose names hold this"_s, u"TEXT"_s});
    parser.process(arguments);
    if (parser.positionalArguments().size() != 1) {
        std::fputs("gallery: one folder for the pictures is needed\n", stderr);
        std::exit(kWrongUsage);
    }
    return {parser.positionalArguments().constFirst(), parser.value(u"only"_s)};
}

/// Takes one picture after the other; ends the program with the number of those that failed, 0 or 1.
class Round : public QObject
{
    Q_OBJECT

public:
    Round(QList<Picture> pictures, QString folder) : m_pictures(std::move(pictures)), m_folder(std::move(folder)) {}

    void next()
    {
        m_photographer.reset();
        if (m_done == m_pictures.size())
            return QCoreApplication::exit(m_failed > 0 ? EXIT_FAILURE : EXIT_SUCCESS);
        const Picture &picture = m_pictures.at(m_done++);
        applyTheme(picture.theme);
        m_photographer = std::make_unique<Photographer>(picture, m_folder);
        applyStyleSheet(*qApp);
        connect(m_photographer.get(), &Photographer::finished, this, &Round::tell, Qt::QueuedConnection);
        m_photographer->begin();
    }

private:
    void tell(bool saved)
    {
        m_failed += saved ? 0 : 1;
        std::printf("%3lld/%lld %s%s\n", static_cast<long long>(m_done), static_cast<long long>(m_pictures.size()),
                    qPrintable(m_pictures.at(m_done - 1).name), saved ? "" : ": not taken");
        std::fflush(stdout);
        next();
    }

    QList<Picture> m_pictures;
    QString m_folder;
    std::unique_ptr<Photographer> m_photographer;
    qsizetype m_done = 0;
    int m_failed = 0;
};

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const Wishes wishes = wishesFrom(QApplication::arguments());
    if (!QDir().mkpath(wishes.folder)) {
        std::fputs(qPrintable(u"gallery: cannot make the folder %1\n"_s.arg(wishes.folder)), stderr);
        return EXIT_FAILURE;
    }
    QList<Picture> pictures = allPictures();
    pictures.removeIf([&](const Picture &picture) { return !picture.name.contains(wishes.only); });
    Round round(pictures, wishes.folder);
    QMetaObject::invokeMethod(&round, &Round::next, Qt::QueuedConnection);
    return QApplication::exec();
}

#include "main.moc"
