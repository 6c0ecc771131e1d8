#include "surveysteps.h"

#include "bateriareading.h"
#include "checkscreen.h"
#include "chestnutreading.h"
#include "i2creading.h"
#include "icreading.h"
#include "models.h"
#include "nandreading.h"
#include "outrosreading.h"
#include "railreading.h"
#include "replycodes.h"
#include "rfsreading.h"
#include "selftest.h"
#include "serialnumber.h"
#include "tigrisreading.h"

#include <array>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

bool isTouchSupplyOff(const SurveyInput &input)
{
    return isTouchSupplyFaulty(readChestnut({input.reply, input.cut, input.model, input.language}));
}

QList<SurveyStep> powerSteps(const QString &model)
{
    QList<SurveyStep> steps{
        {.part = SurveyPart::Serial, .command = kSerialCommand, .code = kMainWindowCode, .expected = 350ms},
        {.part = SurveyPart::Power, .command = kSelfTest, .code = "15"_L1, .judge = judgePower, .expected = 800ms},
        {.part = SurveyPart::PortChip, .command = portChipCommand(1), .code = "5"_L1, .judge = judgePortChip},
        {.part = SurveyPart::Charger, .command = kTigrisCommand, .code = "9"_L1, .judge = judgeCharger},
    };
    if (!hasOledPanel(model)) { // the OLED panel's supplies stand in the reply of the power chip
        steps.append({.part = SurveyPart::DisplayChip,
                      .command = kChestnutCommand,
                      .code = "8"_L1,
                      .judge = judgeDisplayChip,
                      .remedy = kTouchOn,
                      .needsRemedy = isTouchSupplyOff});
    }
    return steps;
}

QList<SurveyStep> batterySteps()
{
    return {{.part = SurveyPart::Battery, .command = kBatteryProperties, .code = "14"_L1, .rest = 300ms},
            {.part = SurveyPart::Battery,
             .command = kGasGauge,
             .code = kBatteryLongCode,
             .judge = judgeBattery,
             .expected = 1200ms}};
}

QList<SurveyStep> busSteps(const QString &model)
{
    QList<SurveyStep> steps;
    for (int bus = 0; bus < kBuses; ++bus) {
        if (busButton(model, bus) == BusButton::Testable) {
            steps.append({.part = SurveyPart::Buses,
                          .command = busCommand(bus),
                          .code = "6"_L1,
                          .judge = judgeBus,
                          .index = bus});
        }
    }
    return steps;
}

SurveyStep storageStep(SurveyPart part, NandTest test, std::chrono::milliseconds expected)
{
    return {.part = part,
            .command = nandCommand(test),
            .code = "4"_L1,
            .judge = judgeStorage,
            .index = static_cast<int>(test),
            .expected = expected};
}

QList<SurveyStep> radioSteps(const QString &model)
{
    QList<SurveyStep> steps;
    for (int index = 0; index < kRadios; ++index) {
        if (!radio(index).isMissingOnOldest || !isSixFamily(model)) {
            steps.append({.part = SurveyPart::Radios,
                          .command = radio(index).commands.at(static_cast<std::size_t>(RadioAction::On)),
                          .code = "2"_L1,
                          .judge = judgeRadio,
                          .index = index});
        }
    }
    return steps;
}

QList<SurveyStep> memorySteps()
{
    QList<SurveyStep> steps;
    for (const int index : {kFullMemoryTest, kSmallMemoryTest}) {
        steps.append({.part = SurveyPart::Memory,
                      .command = memoryTest(index)->command,
                      .code = "17"_L1,
                      .judge = judgeMemory,
                      .index = index,
                      .expected = 7s});
    }
    return steps;
}

} // namespace

QStringView captionKey(SurveyPart part)
{
    static constexpr std::array<QStringView, 11> kKeys = {
        u"Número de série", u"Tensões",      u"Tigris", u"Chestnut", u"IC", u"Bateria", u"I2C", u"NAND", u"RF",
        u"syscfg",          u"MEM RAM Teste"};
    return kKeys.at(static_cast<std::size_t>(part));
}

QLatin1StringView SurveyStep::sentUnder() const
{
    const ReplyCode *row = replyCode(code);
    return row && row->endsBySilence ? kSurveyLongCode : kSurveyCode;
}

QList<SurveyStep> surveySteps(const QString &model, SurveyExtras extras)
{
    QList<SurveyStep> steps = powerSteps(model) + batterySteps() + busSteps(model);
    steps.append(storageStep(SurveyPart::Storage, NandTest::Id, 400ms));
    steps.append(storageStep(SurveyPart::Storage, NandTest::Size, 400ms));
    steps += radioSteps(model);
    if (extras.testFlag(SurveyExtra::Syscfg))
        steps.append(storageStep(SurveyPart::Configuration, NandTest::Configuration, 6s));
    if (extras.testFlag(SurveyExtra::Memory))
        steps += memorySteps();
    return steps;
}

SurveyStep remedyOf(const SurveyStep &step)
{
    return {.part = step.part, .command = step.remedy, .code = kMainWindowCode, .rest = 1000ms};
}
