#pragma once

#include <QWidget>

/// A percentage as an arc with its text in the middle. A value that is not known leaves the arc empty.
class Gauge : public QWidget
{
    Q_OBJECT

public:
    explicit Gauge(QWidget *parent = nullptr);

    int value() const { return m_value; }
    void setValue(int percent); ///< less than 0: not known
    void setText(const QString &text);
    void setCaption(const QString &caption);

    QSize sizeHint() const override { return {200, 200}; }
    QSize minimumSizeHint() const override { return {140, 140}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void tell();

    int m_value = -1;
    QString m_text;
    QString m_caption;
};
