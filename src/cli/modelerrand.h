#pragma once

#include "errand.h"

/// A command about a board whose model is known: the connected phone's, or that of a saved reply.
class ModelErrand : public Errand
{
    Q_OBJECT

public:
    explicit ModelErrand(CommonOptions options);
    ModelErrand(CommonOptions options, const QByteArray &reply);

    void start() override;

protected:
    void connectedToPhone() override;
    /// The model is known, or was given with the reply. Called once.
    virtual void begin() = 0;
    void refuseWithoutModel();

private:
    void beginOnce();

    bool m_replayed;
    bool m_begun = false;
};
