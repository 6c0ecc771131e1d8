#include "checkanswer.h"

#include "phoneprofile.h"
#include "scatter.h"
#include "seeds.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kScan = "i2c -s "_L1;
constexpr auto kNoResponse = "ERROR: no response"_L1;
constexpr auto kNoDisplay = "ERROR: no display"_L1;
constexpr auto kNoDriver = "ERROR: Driver is missing!"_L1;

bool isOldFamily(const QString &model)
{
    return model.startsWith("IP 6"_L1);
}

// ---- buses

/// The devices on a bus by their addresses, "0x1A".
QStringList addresses(const QString &model, const QString &bus)
{
    const SeedTable table = seedTable(u"i2c"_s);
    QStringList found;
    for (const QStringList &row : table.rows) {
        const QString device = table.cell(row, u"i");
        if (table.cell(row, u"Aparelho") == model && device.startsWith(bus))
            found.append(u'0' + device.mid(1, 3));
    }
    return found;
}

QString busFault(const QString &bus, const QString &address)
{
    return u"i2c%1:%2"_s.arg(bus, address.mid(2));
}

QStringList busFaults(const QString &model)
{
    QStringList faults;
    for (int bus = 0; bus <= 9; ++bus)
        for (const QString &address : addresses(model, QString::number(bus)))
            faults.append(busFault(QString::number(bus), address));
    return faults;
}

QStringList scanLines(const PhoneProfile &profile, const QString &bus)
{
    QStringList lines{u"Scanning bus "_s + bus};
    for (const QString &address : addresses(profile.model, bus))
        if (!profile.broken.contains(busFault(bus, address).toLower()))
            lines.append(address);
    return lines;
}

// ---- radios

struct Radio
{
    QLatin1StringView word;
    QLatin1StringView properties; ///< the option that asks for them
    QLatin1StringView cameUp;
    QLatin1StringView wasUp;
};

constexpr std::array kRadios = {
    Radio{"baseband"_L1, "-p"_L1, "BB_HSIC_RDY"_L1, "Baseband is already powered on"_L1},
    Radio{"bluetooth"_L1, "-p"_L1, "on success"_L1, "Already on"_L1},
    Radio{"wifi"_L1, "--properties"_L1, "OK"_L1, "Wifi is already on"_L1},
    Radio{"gps"_L1, "--getinfo"_L1, "on success"_L1, "GPS is already on"_L1},
};

QString radioFault(const Radio &radio)
{
    return u"radio%1"_s.arg(&radio - kRadios.data());
}

const Radio *radioOf(const PhoneProfile &profile, const QString &line)
{
    const auto radio = std::ranges::find(kRadios, line.section(u' ', 0, 0), &Radio::word);
    const bool isThere = radio != kRadios.end() && (radio->word != "gps"_L1 || !isOldFamily(profile.model));
    return isThere ? &*radio : nullptr;
}

QString radioLine(const PhoneProfile &profile, const Radio &radio, const QString &option)
{
    if (profile.broken.contains(radioFault(radio)))
        return kNoResponse;
    const bool isUp = profile.radiosOn.contains(radio.word);
    if (option == "--on"_L1)
        return isUp ? radio.wasUp : radio.cameUp;
    if (option == "--off"_L1)
        return u"powered down"_s;
    return u"%1: state %2, firmware loaded"_s.arg(radio.word, isUp ? u"up"_s : u"down"_s);
}

bool isRadioOption(const Radio &radio, const QString &option)
{
    return option == "--on"_L1 || option == "--off"_L1 || option == radio.properties;
}

// ---- storage

QStringList configuration(const PhoneProfile &profile)
{
    constexpr int kLines = 40;
    constexpr int kWords = 20;
    QStringList lines;
    for (int line = 0; line < kLines; ++line) {
        QStringList words;
        for (int word = 0; word < kWords; ++word)
            words.append("0x"_L1 + scatteredDigits(profile.model, u"key %1.%2"_s.arg(line).arg(word)));
        lines.append(u"Key%1: "_s.arg(line, 3, 10, QLatin1Char('0')) + words.join(u' '));
    }
    return lines;
}

QStringList uniqueNumber(const PhoneProfile &profile)
{
    return {"UID: "_L1 + scatteredDigits(profile.model, u"uid high") + scatteredDigits(profile.model, u"uid low"),
            u"Passed"_s};
}

/// Kibibytes, and the last line.
QStringList storageSize(const PhoneProfile &)
{
    return {u"Passed"_s, u"size: 1DCC800"_s};
}

QStringList storageInfo(const PhoneProfile &profile)
{
    if (isOldFamily(profile.model))
        return {u"Command \"nand\" not found!"_s};
    return {u"name: NAND0"_s, u"planes: 4"_s, u"blocks: 2192"_s};
}

// ---- display and memory

QStringList displayMode(const PhoneProfile &profile)
{
    if (profile.broken.contains(u"display"_s))
        return {kNoDisplay};
    const bool isPlus = profile.model.endsWith("Plus"_L1);
    return {profile.model == "IP X"_L1 ? u"1125x2436"_s : isPlus ? u"1080x1920"_s : u"750x1334"_s};
}

QStringList memoryTest(const PhoneProfile &profile)
{
    constexpr int kSteps = 8;
    QStringList lines{u"Testing memory"_s};
    for (int step = 1; step <= kSteps; ++step)
        lines.append(u"Block %1 of %2"_s.arg(step).arg(kSteps));
    return lines + QStringList{profile.broken.contains(u"memory"_s) ? u"FAILED"_s : u"Passed"_s};
}

struct PartCommand
{
    QLatin1StringView line;
    QLatin1StringView part; ///< that leaves one line of trouble when it is broken; empty: the command sees to it
    QStringList (*lines)(const PhoneProfile &);
    int pauses = 0;
};

constexpr std::array kCommands = {
    PartCommand{"nanduid"_L1, "nand"_L1, uniqueNumber},
    PartCommand{"nandsize"_L1, "nand"_L1, storageSize},
    PartCommand{"nand --getinfo"_L1, "nand"_L1, storageInfo},
    PartCommand{"syscfg list"_L1, "nand"_L1, configuration, 1},
    PartCommand{"display --getmode"_L1, {}, displayMode},
    PartCommand{"testmemory"_L1, {}, memoryTest, 5},
    PartCommand{"testmemory --1MB"_L1, {}, memoryTest, 3},
};

struct Part
{
    QLatin1StringView name;
    QLatin1StringView how;
};

constexpr std::array kParts = {Part{"nand"_L1, "missing"_L1}, Part{"memory"_L1, "bad"_L1},
                               Part{"display"_L1, "off"_L1}};

/// What is seen on the screen leaves no word.
bool isDrawing(const QString &line)
{
    const QString word = line.section(u' ', 0, 0);
    return word == "bl"_L1 || word == "displaytext"_L1;
}

} // namespace

std::optional<ShellAnswer> checkAnswer(const PhoneProfile &profile, const QString &line)
{
    if (line.startsWith(kScan))
        return ShellAnswer{.lines = scanLines(profile, line.sliced(kScan.size()))};
    if (isDrawing(line))
        return ShellAnswer{.lines = profile.broken.contains(u"display"_s) ? QStringList{kNoDisplay} : QStringList()};
    const QString option = line.section(u' ', 1);
    if (const Radio *radio = radioOf(profile, line); radio && isRadioOption(*radio, option))
        return ShellAnswer{.lines = {radioLine(profile, *radio, option)}};
    const auto command = std::ranges::find(kCommands, line, &PartCommand::line);
    if (command == kCommands.end())
        return std::nullopt;
    if (!command->part.isEmpty() && profile.broken.contains(command->part))
        return ShellAnswer{.lines = {kNoDriver}};
    return ShellAnswer{.lines = command->lines(profile), .pauses = command->pauses};
}

void obeyCheck(PhoneProfile &profile, const QString &line)
{
    const Radio *radio = radioOf(profile, line);
    if (!radio || profile.broken.contains(radioFault(*radio)))
        return;
    const QString option = line.section(u' ', 1);
    if (option == "--off"_L1)
        profile.radiosOn.removeAll(radio->word);
    if (option == "--on"_L1)
        profile.radiosOn.append(radio->word);
}

bool breakPart(PhoneProfile &profile, const QString &part, const QString &how)
{
    const QString typed = part + u'=' + how;
    if (!partFaults(profile).contains(typed, Qt::CaseInsensitive))
        return false;
    profile.broken.append(part.toLower());
    return true;
}

QStringList partFaults(const PhoneProfile &profile)
{
    QStringList faults;
    for (const Part &part : kParts)
        faults.append(part.name + u'=' + part.how);
    for (const Radio &radio : kRadios)
        faults.append(radioFault(radio) + "=off"_L1);
    for (const QString &fault : busFaults(profile.model))
        faults.append(fault + "=off"_L1);
    return faults;
}
