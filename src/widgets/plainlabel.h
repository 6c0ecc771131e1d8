#pragma once

#include <QLabel>

/// A label that takes nothing for markup. A text that its room does not hold ends in "…", and its tip then tells it
/// whole; a long one never widens the window.
class PlainLabel : public QLabel
{
    Q_OBJECT

public:
    explicit PlainLabel(const QString &text = {}, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QSize bounded(const QSize &size, int letters) const;
    QRect room() const;
    bool isCut() const;
};
