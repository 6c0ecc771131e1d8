#pragma once

#include "masterscreen.h"
#include "screenform.h"

class CommandBar;
class ComparatorPane;
class ComparisonHead;
class ConsolePane;
class DifferenceView;
class FindBar;
class fmHelp;
class HistoryPane;
class QLabel;
class QSplitter;
class QStackedWidget;
class TextPane;

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
    QWidget *panes();
    QWidget *footRow();
    void connectCommand();
    void connectComparator();
    void connectDifferences();
    void connectKeys();
    void lookInFocused(const QWidget *focused);

    std::optional<MasterEdits> unsaved() const;
    MasterEdits edits() const;
    void send();
    void showHelp(const QString &text);
    void showDifferences(bool shown);
    QString textOf(const TextPane *pane) const;
    void saveText();

    MasterScreen &m_master;
    ComparisonHead *m_head;
    CommandBar *m_command;
    QSplitter *m_hScroll1;
    QStackedWidget *m_views;
    ConsolePane *m_console;
    ComparatorPane *m_comparator;
    HistoryPane *m_history;
    DifferenceView *m_differences;
    FindBar *m_findBar;
    QLabel *m_lbVar;
    QPointer<fmHelp> m_help;
};
