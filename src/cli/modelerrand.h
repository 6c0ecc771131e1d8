#pragma once

#include "errand.h"
#include "reportdocument.h"

/// A command about a board whose model is known: the connected phone's, or that of a saved reply.
class ModelErrand : public Errand
{
    Q_OBJECT

public:
    explicit ModelErrand(CommonOptions options);
    ModelErrand(CommonOptions options, const QByteArray &reply);

    void start() override;

protected:
    /// Ends a command that cannot come to anything, before a phone is asked.
    virtual void refuseInVain() {}
    void connectedToPhone() override;
    /// The model is known, or was given with the reply. Called once.
    virtual void begin() = 0;
    void refuseWithoutModel();
    /// What the store holds for a setting; empty when the store failed, which ended the errand.
    QString stored(const QString &name);
    /// Writes a report with the shop's logo. When it cannot be written, the errand has failed.
    void writePdf(ReportDocument report, const QString &path);

private:
    void beginOnce();

    bool m_replayed;
    bool m_begun = false;
};
