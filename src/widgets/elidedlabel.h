#pragma once

#include <QLabel>

/// A line that ends in "…" where there is no room for it, and whose tip then tells it whole: it never widens the
/// window.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QRect room() const;
};
