#include "outrosreading.h"

#include "catalogue.h"
#include "communication.h"
#include "replytext.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

static constexpr std::array kTests = {
    MemoryTest{kFullMemoryTest, "testmemory"_L1, u"MEM RAM Teste", {}, u"RAM"},
    MemoryTest{kSmallMemoryTest, "testmemory --1MB"_L1, u"MEM RAM Teste 1MB", u"TESTE 15s"},
};

static constexpr QStringView kPassed = u"Pass"; // of "Passed" too; capitals are another word

const MemoryTest *memoryTest(int index)
{
    const auto test = std::ranges::find(kTests, index, &MemoryTest::index);
    return test == kTests.end() ? nullptr : &*test;
}

/// The line with the verdict of the phone, else the last one before the prompt.
static QString tellingLine(const QString &reply)
{
    for (const QStringView word : {kPassed, QStringView(u"FAIL")})
        if (const QString line = lineWith(reply, word); !line.isNull())
            return line;
    for (QStringView rest = QStringView(reply).trimmed(); !rest.isEmpty();) {
        const qsizetype start = rest.lastIndexOf(u'\n') + 1;
        if (const QStringView line = rest.sliced(start).trimmed(); !line.contains(u"] :-)"))
            return line.toString();
        rest = rest.first(start).trimmed();
    }
    return {};
}

Panel readMemory(const MemoryInput &input)
{
    Panel panel;
    panel.screen = u"Outros"_s;
    panel.title = caption(u"Testes Adicionais", input.language) + " - Tavimo Prelt"_L1;
    panel.fields[u"lbDispositivo"_s].text = caption(u"Modelo", input.language) + u": "_s + input.model;
    for (const auto &label : {u"lbStatus"_s, u"lbStatus2"_s, u"lbIC"_s})
        panel.fields[label].text = QString();
    hideMarks(panel);
    const MemoryTest *test = memoryTest(input.index);
    const bool isShown = test && (input.isRunning || input.isWhole);
    if (isShown)
        panel.fields[u"lbStatus2"_s].text = test->part.toString();
    const QString note = isShown && input.isRunning ? caption(test->note, input.language) : QString();
    panel.fields[u"txtDados"_s].text = input.reply.isEmpty() ? note : shownReply(input.reply);
    if (!test || !input.isWhole)
        return panel;
    const bool passed = input.reply.contains(kPassed);
    panel.fields[u"lbStatus"_s].text = communicationText(passed, input.language);
    addCommunication(panel, {u"RAM"_s, passed, input.cut, tellingLine(input.reply), input.language});
    return panel;
}
