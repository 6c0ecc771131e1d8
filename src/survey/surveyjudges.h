#pragma once

#include "busdevices.h"
#include "language.h"
#include "panel.h"
#include "railrows.h"

#include <QMap>

/// What a board is held against: the rows of its model, read once for the whole survey.
struct SurveyReference
{
    QMap<int, QList<RailRow>> rails; ///< by kind
    std::optional<QList<BusDevice>> devices = {};
    int batteryWorn = 80;        ///< a battery of less health, in per cent, is worn
    bool isBatteryPreset = true; ///< the limit was never set
};

/// The reply to one question of a survey and what it is judged by.
struct SurveyInput
{
    QString reply;
    bool cut = false;
    int index = 0; ///< of the bus, the radio or the test
    QString model;
    Language language = Language::Portuguese;
    const SurveyReference &reference;
};

using SurveyJudge = QList<Judgement> (*)(const SurveyInput &input);

/// Every screen that reads the power chip's own measurements: rails of all kinds, the port controller's and the OLED
/// panel's supplies.
QList<Judgement> judgePower(const SurveyInput &input);
QList<Judgement> judgeCharger(const SurveyInput &input);
QList<Judgement> judgeDisplayChip(const SurveyInput &input);
QList<Judgement> judgePortChip(const SurveyInput &input);
/// The facts of the gauge, and its health held against the limit: the screen itself judges nothing.
QList<Judgement> judgeBattery(const SurveyInput &input);
/// The devices that are expected on a bus; where there are none, what answers.
QList<Judgement> judgeBus(const SurveyInput &input);
QList<Judgement> judgeStorage(const SurveyInput &input);
QList<Judgement> judgeRadio(const SurveyInput &input);
QList<Judgement> judgeMemory(const SurveyInput &input);
