#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/// What one CMake list says of a target.
struct Target
{
    QString name;
    QString folder;
    QStringList sources;
    QStringList links;
};

/// An `#include` line, as its target and the text between the brackets or quotes.
struct Include
{
    QString target;
    QString file;
    QString header;
};

/// The sources of the program as the build sees them.
struct SourceTree
{
    QList<Target> targets;
    QStringList files;               ///< every .h and .cpp, with its path below the root
    QHash<QString, QString> ownerOf; ///< the target of a file; none when no target builds it
    QList<Include> includes;

    /// The target that owns a header of this name, or nothing when it is none of ours.
    QString ownerOfHeader(const QString &header) const;
};

/// A file as text; empty when there is none.
QString contents(const QString &path);

/// The targets that a CMake list declares.
QList<Target> targetsIn(const QString &cmakeList, const QString &folder);

/// The headers that a source names.
QStringList headersNamedIn(const QString &source);

/// Reads the tree below a root folder.
SourceTree readTree(const QString &root);
