#pragma once

#include "exchangelog.h"
#include "language.h"

#include <QTimer>
#include <QWidget>

class FindBar;
class TextPane;

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
    void wake();
    QString nextText();
    QString textOf(const Exchange &exchange);
    QString opened(const Exchange &exchange);
    void save();

    ExchangeLog &m_log;
    Language m_language = Language::English;
    QTimer m_timer;
    qint64 m_shown = 0;
    std::optional<Exchange::Direction> m_openLine; ///< the direction of a line that has no end yet
    qsizetype m_lineLength = 0;
    TextPane *m_text;
    FindBar *m_find;
};
