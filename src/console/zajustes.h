#pragma once

#include "ajustesscreen.h"
#include "screenform.h"

class QComboBox;
class QLabel;
class QPushButton;
class TextPane;

/// The form of the recordings of a model and of its Plus variant.
class zAjustes : public ScreenForm
{
    Q_OBJECT

public:
    explicit zAjustes(Session &session, QWidget *parent = nullptr);

    void Traducao_Form() override;

private:
    using Side = AjustesScreen::Side;

    /// One recording with its owner and its buttons.
    struct Pane
    {
        QLabel *owner = nullptr;
        TextPane *text = nullptr;
        QPushButton *mask = nullptr;
        QPushButton *copy = nullptr;
    };

    QWidget *choiceRow();
    QWidget *paneFor(Side side);
    void connectButtons();
    void select();
    void showRecordings();
    void copy(Side side);
    AjustesScreen::Edits edits() const;
    std::optional<AjustesScreen::Edits> unsaved() const;

    AjustesScreen &m_ajustes;
    QLabel *m_lbModelo;
    QLabel *m_lbComando;
    QComboBox *m_comboAparelhos;
    QComboBox *m_txtComandos;
    std::array<Pane, 2> m_panes;
    QPushButton *m_btAtualizar;
    QPushButton *m_command2;
};
