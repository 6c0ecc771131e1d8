#pragma once

#include <QToolButton>

/// A button of the rail: icon and caption, and at its right the key that does the same.
class RailButton : public QToolButton
{
    Q_OBJECT

public:
    explicit RailButton(QString key, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    /// On a low screen the buttons come closer before the rail has to scroll.
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_key;
};
