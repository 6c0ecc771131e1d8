#pragma once

#include "rfrows.h"
#include "screen.h"

/// The letter under which the reference voltages of a model and baseband variant are stored.
QString rfTipo(const QString &model, int variant);

/// The reference voltages around the radios. They are measured by hand: nothing is read or judged.
class RFs_EsqScreen : public Screen
{
    Q_OBJECT

public:
    explicit RFs_EsqScreen(Session &session, QObject *parent = nullptr);

    void open() override;
    void read() override { load(); }
    bool hasReading() const override { return false; }

    void ComboAparelhos_Click(const QString &model);
    void Botao1_Click() { chooseVariant(1); }
    void Botao2_Click() { chooseVariant(2); }

    void take(const Delivery &) override {}
    void resume() override {}
    void release(Release, const Delivery &) override {}

private:
    void chooseVariant(int variant);
    void followModel();
    void load();
    void rebuild();

    QString m_model;
    int m_variant = 1;
    QList<RfRow> m_rows;
};
