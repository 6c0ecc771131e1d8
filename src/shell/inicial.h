#pragma once

#include "exchangelog.h"
#include "portlist.h"
#include "session.h"
#include "theme.h"
#include "windowstate.h"

#include <QMainWindow>

#include <functional>

class ConnectionBar;
class ExchangeDrawer;
class FindingsPanel;
class ModuleRail;
class QHBoxLayout;
class QLabel;
class QMenu;
class QProgressBar;
class QSplitter;
class QToolButton;
class Reconnector;
class ScreenForm;
class ScreenTabs;
class TermsBanner;

/// What the window works with.
struct WindowParts
{
    Session &session;
    ExchangeLog &log;
    std::function<QList<PortEntry>()> ports;
};

/// The frame window: connection bar, rail of screens, the open screens as tabs, the findings and the exchange log.
class Inicial : public QMainWindow
{
    Q_OBJECT

public:
    explicit Inicial(const WindowParts &parts, QWidget *parent = nullptr);
    ~Inicial() override;

    ConnectionBar &connectionBar() const { return *m_connectionBar; }

    /// A numbered button: 1 connects or disconnects, the others open a screen or a dialog; any other does nothing.
    void Botoes_Click(int index);
    /// Opens a screen, or raises it when it is open already.
    void openScreen(const QString &name);
    /// Starts the reading of an open screen.
    void readScreen(const QString &name);
    /// One line at the bottom: what was refused or ignored, and why.
    void showNotice(const Trouble &trouble);
    void Traducao_Form_Inicial();
    /// Shows the terms until they are accepted.
    void askForTerms();
    /// Opens or folds the exchange log.
    void showLog(bool open);

    WindowState state() const;
    void restore(const WindowState &state);

signals:
    /// The about box asks for what a former version's store holds.
    void importWanted();
    /// Another screen is in front, or none any more.
    void screensChanged();
    /// The user has chosen another theme.
    void themeChosen();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *content();
    QWidget *topRow();
    void fillStatusBar();
    void connectSession();
    void connectWindow();
    void connectReconnector();
    void openAbout();
    void addDrawer();
    void buildMenu();
    void connectForm(ScreenForm *form);
    void keepOnScreen();
    void listPorts();
    void tellStoreTrouble(const Trouble &trouble);
    void paintStatus();
    void paintProgress();
    void paintModel();
    void paintTabs();
    void paintFindings();
    void foldFindings();
    void layFindingsOver();
    void retheme(ThemeChoice choice);
    QString text(QStringView key) const;

    Session &m_session;
    ExchangeLog &m_log;
    std::function<QList<PortEntry>()> m_ports;
    ConnectionBar *m_connectionBar;
    ModuleRail *m_rail;
    TermsBanner *m_terms;
    ScreenTabs *m_tabs;
    QSplitter *m_splitter;
    ExchangeDrawer *m_drawer = nullptr;
    QToolButton *m_btLog;
    QToolButton *m_btReconectar;
    Reconnector *m_reconnector;
    QHBoxLayout *m_middle;
    QLabel *m_emptyHint;
    FindingsPanel *m_findings;
    QToolButton *m_findingsButton;
    QToolButton *m_menuButton;
    QMenu *m_menu;
    QLabel *m_notice;
    QProgressBar *m_progress;
    bool m_findingsOpened = false;
    ThemeChoice m_theme = ThemeChoice::Desktop; ///< as chosen, whatever this start was told
    QString m_foundOn;                          ///< the model that the findings are about
    std::optional<Notice> m_toldTrouble;
};
