#pragma once

#include "masterscreen.h"
#include "screenform.h"

#include <array>

class CommandLine;
class ComparatorPane;
class DifferenceView;
class FindBar;
class fmHelp;
class HistoryPane;
class QCheckBox;
class QDoubleSpinBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSplitter;
class QStackedWidget;
class QToolButton;
class TextPane;
class VerdictBadge;

/// The form of the console and comparator: the command line on top, the reply at the left, the recording at the right,
/// or the two line by line.
class Master : public ScreenForm
{
    Q_OBJECT

public:
    explicit Master(Session &session, QWidget *parent = nullptr);

    void Traducao_Form() override;

protected:
    void paintPanel() override;
    void showEvent(QShowEvent *event) override;

private:
    QWidget *headRow();
    QWidget *commandRow();
    QWidget *descriptionRow();
    QWidget *consolePane();
    QWidget *panes();
    QWidget *footRow();
    void connectCommand();
    void connectButtons();
    void connectPanes();
    void connectKeys();
    void lookInFocused(const QWidget *focused);

    std::optional<MasterEdits> unsaved() const;
    MasterEdits edits() const;
    void send();
    void showCommandLine(const QString &text);
    void showCommands();
    void showDescription();
    void showConsole();
    void showHelp(const QString &text);
    void showDifferences(bool shown);
    void saveText();
    void tellShownLines();

    MasterScreen &m_master;
    VerdictBadge *m_badge;
    CommandLine *m_txtComandos;
    QPushButton *m_btSend;
    QPushButton *m_btParar;
    std::array<QToolButton *, 7> m_tools;
    std::array<QLineEdit *, 3> m_txtInfoComandos;
    QString m_described; ///< the command that the descriptions are about
    QSplitter *m_hScroll1;
    QStackedWidget *m_views;
    QLabel *m_ldDispConect;
    QLabel *m_lbLinhas;
    TextPane *m_txtConsole;
    QCheckBox *m_ckLimpar;
    QPushButton *m_btLimpar;
    ComparatorPane *m_comparator;
    HistoryPane *m_history;
    DifferenceView *m_differences;
    QPushButton *m_btDiferencas;
    QToolButton *m_btAnteriorDif;
    QToolButton *m_btProximaDif;
    QLabel *m_lbTolerancia;
    QDoubleSpinBox *m_tolerancia;
    FindBar *m_findBar;
    QLabel *m_lbVar;
    QPointer<fmHelp> m_help;
};
