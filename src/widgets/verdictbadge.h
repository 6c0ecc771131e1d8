#pragma once

#include "language.h"
#include "panel.h"

#include <QWidget>

/// The verdict of a screen, large, by shape, word and colour, with what it rests on under it.
class VerdictBadge : public QWidget
{
    Q_OBJECT

public:
    explicit VerdictBadge(QWidget *parent = nullptr) : QWidget(parent) {}

    void setLanguage(Language language);
    void setPanel(const Panel &panel);

    /// How many of the panel's judgements came to this.
    static int count(const Panel &panel, Verdict verdict);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void tell();

    Panel m_panel;
    Language m_language = Language::English;
    QString m_word;
    QString m_detail;
};
