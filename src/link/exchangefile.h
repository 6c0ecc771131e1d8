#pragma once

#include <QDir>
#include <QFile>

/// What a file of the exchange begins with.
inline constexpr char kExchangeHeading[] =
    "# Tavimo Prelt exchange log. A chunk per line: time (UTC), < from or > to the phone, bytes "
    "(\\\\ \\r \\n \\t, others \\x and two digits).\n";

/// How much of the exchange is kept where, in bytes.
struct ExchangeLimits
{
    qsizetype memory = 4 << 20;
    qint64 file = 12 << 20;
    qint64 folder = 96 << 20; ///< holds a flood of 20 MB even when every byte takes four
};

/// The exchange of this session on disk: files of a limited size in a folder of a limited size, where the oldest give
/// way, also those of earlier sessions. No file is made before there is something to write.
class ExchangeFile
{
public:
    ExchangeFile(const QString &folder, const ExchangeLimits &limits);

    /// Appends whole lines. When that fails nothing of them stays in the file.
    bool append(const QByteArray &lines);

    /// The files of this session so far, oldest first; those that had to give way are named too.
    QStringList files() const;

    QString path() const { return m_file.fileName(); }
    QString error() const { return m_file.errorString(); }

private:
    QString nameOf(int part) const;
    bool begin();
    void makeRoom();

    QDir m_folder;
    QString m_stem;
    ExchangeLimits m_limits;
    QFile m_file;
    qint64 m_size = 0;
    int m_parts = 0;
};
