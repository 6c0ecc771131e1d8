#pragma once

#include <QString>

#include <functional>

class QWidget;

/// What kind of file is written; it gives the name its ending.
enum class FileKind
{
    Csv,
    Json,
    Pdf,
    Text,
    Log
};

/// What is asked for: the dialog's title, and the name that it suggests, without ending.
struct FileWish
{
    QString title;
    QString name;
    FileKind kind;
};

/// Asks where a file is to be written, in the documents folder at first. Nothing happens when that is cancelled.
void askForFile(QWidget *parent, const FileWish &wish, const std::function<void(const QString &path)> &write);
