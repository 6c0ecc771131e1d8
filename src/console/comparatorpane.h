#pragma once

#include <QWidget>

#include <array>

class MasterScreen;
struct MasterEdits;
class PlainLabel;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class TextPane;

/// What a known-good phone answered, with its notes, to be read, edited and replaced.
class ComparatorPane : public QWidget
{
    Q_OBJECT

public:
    /// Of what stands above the text, so that the texts at both sides begin alike.
    static constexpr int kHeadHeight = 28;

    explicit ComparatorPane(MasterScreen &screen, QWidget *parent = nullptr);

    void Traducao_Form();
    TextPane *recording() const { return m_txtComparador; }
    /// Something was typed that is not saved.
    bool isEdited() const;
    void addEdits(MasterEdits &edits) const;
    void setSaved();

signals:
    void saveWanted();
    void maskWanted();
    /// One of the buttons that write was pressed.
    void keepingAsked();

private:
    QWidget *head();
    QWidget *notes();
    QWidget *buttons();
    void showRecording();
    void tellShownLines();
    void connectButtons();

    MasterScreen &m_screen;
    QLabel *m_ldDispComparador;
    QWidget *m_lbAutoComparador;
    QLabel *m_picture;
    QLabel *m_lbAutoComparadorX;
    PlainLabel *m_lbLinhas;
    TextPane *m_txtComparador;
    QLabel *m_lbInfDados;
    std::array<QPlainTextEdit *, 3> m_txtInfoDados;
    QPushButton *m_btSalvar;
    QPushButton *m_btSalvarAtualizacoes;
    QPushButton *m_btExcluir;
    QPushButton *m_command1;
    QPushButton *m_command2;
};
