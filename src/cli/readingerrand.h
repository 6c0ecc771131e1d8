#pragma once

#include "modelerrand.h"
#include "reportaddress.h"
#include "screen.h"

/// Runs one screen's reading, on a phone or on a saved reply, and prints what it gave.
class ReadingErrand : public ModelErrand
{
    Q_OBJECT

public:
    ReadingErrand(CommonOptions options, ScreenOptions screenOptions);
    ReadingErrand(CommonOptions options, ScreenOptions screenOptions, const QByteArray &reply);

protected:
    void begin() override;

private:
    void makeScreen();
    void printReading();
    ReportHead reportHead();
    /// The reading as the command line wants it; nothing when the store failed, which ended the errand.
    QString shown(const Panel &panel);
    void writeReport(const Panel &panel);

    ScreenOptions m_screenOptions;
    std::unique_ptr<Screen> m_screen;
};
