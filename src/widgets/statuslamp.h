#pragma once

#include <QWidget>

enum class Light
{
    White,
    Yellow,
    Green
};

/// The state of the link as a lamp beside its word: an empty ring, a half and a full disc, so that the colour is not
/// needed to tell them apart.
class StatusLamp : public QWidget
{
    Q_OBJECT

public:
    explicit StatusLamp(QWidget *parent = nullptr) : QWidget(parent) {}

    void setLight(Light light, const QString &text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Light m_light = Light::White;
    QString m_text;
};
