#pragma once

#include "documentmaker.h"
#include "reportaddress.h"
#include "screen.h"

/// Hands the last reading of a screen to the report service, by an address that is opened. While no service is set up
/// the program makes the document itself, in a worker.
class ReportExport : public QObject
{
    Q_OBJECT

public:
    /// Documents are put into `folder`, which is made when it is needed.
    explicit ReportExport(Screen &screen, QString folder = DocumentMaker::folder(), QObject *parent = nullptr);

    /// Asks for the name first; cancelling that stops the request.
    void btExportar_Click();
    /// Makes the document under a path of the user's choice, under the stored name.
    void savePdf(const QString &path);
    /// A name for it, without folder and ending.
    QString suggestedName() const;
    bool isBusy() const { return m_maker.isBusy(); }
    /// There is a reading to report; if not, the user is told.
    bool hasSomething();

signals:
    void busyChanged();
    /// The document is there.
    void written(const QString &path);

private:
    /// What is reported, as it was when it was asked for.
    struct Order
    {
        Panel panel;
        ReportHead head;
    };

    Order order() const;
    static Order under(const QString &name, Order order);
    void askName(const Order &order);
    void sendOrMake(const Order &order);

    Screen &m_screen;
    QString m_folder;
    DocumentMaker m_maker;
};

/// Today as the system writes it.
QString reportDate();

/// The report of a screen as a document: the same rows as in the address, with what only paper shows.
ReportDocument reportDocument(const Panel &panel, const ReportHead &head);
