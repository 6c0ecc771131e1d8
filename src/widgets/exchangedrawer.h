#pragma once

#include "exchangelog.h"
#include "language.h"

#include <QTimer>
#include <QWidget>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QToolButton;

/// The exchange with the phone as text with times: find, copy, save. It paints now and then, never per chunk, and only
/// while it is shown.
class ExchangeDrawer : public QWidget
{
    Q_OBJECT

public:
    explicit ExchangeDrawer(ExchangeLog &log, QWidget *parent = nullptr);

    void Traducao_Form(Language language);

public slots:
    /// Shows what has passed since the last time.
    void TimerLog_Timer();

signals:
    void saveFailed(const Trouble &trouble);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QWidget *tools();
    void wake();
    QString nextText();
    QString textOf(const Exchange &exchange);
    QString opened(const Exchange &exchange);
    void append(const QString &text);
    void find(bool backwards);
    void save();

    ExchangeLog &m_log;
    Language m_language = Language::English;
    QTimer m_timer;
    qint64 m_shown = 0;
    std::optional<Exchange::Direction> m_openLine; ///< the direction of a line that has no end yet
    qsizetype m_lineLength = 0;
    QPlainTextEdit *m_text;
    QLineEdit *m_find;
    QLabel *m_hit;
    QToolButton *m_next;
    QToolButton *m_previous;
    QToolButton *m_copy;
    QToolButton *m_save;
};
