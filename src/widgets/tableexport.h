#pragma once

#include "language.h"
#include "result.h"

#include <QObject>

#include <functional>

class QAbstractItemModel;
class QWidget;

/// Copies a table as text and writes it as a CSV file, by key and from the menu of the widget that shows it.
class TableExport : public QObject
{
    Q_OBJECT

public:
    /// `copied` gives the text of a copy; without it the whole table is copied.
    TableExport(QWidget &view, const QAbstractItemModel &table, std::function<QString()> copied = {});

    void setLanguage(Language language) { m_language = language; }
    /// The name that the export suggests, without ending.
    void setName(const QString &name) { m_name = name; }

    /// The whole table with its captions.
    QString text() const;
    QByteArray csv() const;

public slots:
    void copy();
    /// Asks for a file and writes the table there.
    void exportCsv();

signals:
    void exportFailed(const Trouble &trouble);

private:
    void openMenu(const QPoint &place);

    QWidget &m_view;
    const QAbstractItemModel &m_table;
    std::function<QString()> m_copied;
    Language m_language = Language::English;
    QString m_name;
};
