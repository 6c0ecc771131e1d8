#pragma once

#include <QWidget>

#include <array>

class CommandLine;
class MasterScreen;
struct MasterEdits;
class QLineEdit;
class QPushButton;
class QToolButton;

/// The command line with its buttons, and below it what the command does.
class CommandBar : public QWidget
{
    Q_OBJECT

public:
    explicit CommandBar(MasterScreen &screen, QWidget *parent = nullptr);

    void Traducao_Form();
    /// A command that was chosen somewhere else.
    void showCommandLine(const QString &text);
    void focusCommandLine();
    void addEdits(MasterEdits &edits) const;
    void setSaved();

signals:
    void sendWanted();
    /// One of the buttons that write was pressed.
    void keepingAsked();

private:
    QWidget *commandRow();
    QWidget *descriptionRow();
    void connectButtons();
    void showCommands();
    void showDescription();
    bool isEdited() const;

    MasterScreen &m_screen;
    CommandLine *m_txtComandos;
    QPushButton *m_btSend;
    QPushButton *m_btParar;
    std::array<QToolButton *, 7> m_tools;
    std::array<QLineEdit *, 3> m_txtInfoComandos;
    QString m_described; ///< the command that the descriptions are about
};
