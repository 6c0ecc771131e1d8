#pragma once

#include "railgridscreen.h"

/// Core rails beside their references, all or those of one chip.
class VCoresScreen : public RailGridScreen
{
    Q_OBJECT

public:
    explicit VCoresScreen(Session &session, QObject *parent = nullptr);

    void btExecutaLeitura_Click() { PrePesquisa(); }
    /// An entry of the list of chips was chosen. Taken only while the link is idle.
    void cbICs_Click(int entry);
    void goTo(const QString &what) override;
    void LimpaLeiturasExterno() override;

protected:
    QMap<QString, Field> state() const override;

private:
    void showChip(int entry);

    int m_entry = 0;
};
