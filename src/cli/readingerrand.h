#pragma once

#include "errand.h"
#include "screen.h"

/// Runs one screen's reading, on a phone or on a saved reply, and prints what it gave.
class ReadingErrand : public Errand
{
    Q_OBJECT

public:
    ReadingErrand(CommonOptions options, ScreenOptions screenOptions);
    ReadingErrand(CommonOptions options, ScreenOptions screenOptions, const QByteArray &reply);

    void start() override;

protected:
    void connectedToPhone() override;

private:
    void makeScreen();
    void readScreen();
    void printReading();
    void refuseWithoutModel();

    ScreenOptions m_screenOptions;
    bool m_replayed;
    std::unique_ptr<Screen> m_screen;
    bool m_reading = false;
};
