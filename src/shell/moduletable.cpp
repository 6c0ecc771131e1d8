#include "moduletable.h"

#include "models.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

static constexpr std::array kModules = {
    Module{"Survey"_L1, u"Vistoria", "survey"_L1, "survey"_L1, ModuleGroup::Board, 0, "Ctrl+Shift+0"_L1},
    Module{"BuckLdo"_L1, u"Buck & Ldo", "buckldo"_L1, "buckldo"_L1, ModuleGroup::Power, 4, "Ctrl+1"_L1},
    Module{"VCores"_L1, u"VCore", "vcore"_L1, "vcore"_L1, ModuleGroup::Power, 3, "Ctrl+2"_L1},
    Module{"PMU"_L1, u"PMU", "pmu"_L1, "pmu"_L1, ModuleGroup::Power, 13, "Ctrl+3"_L1},
    Module{"BuckTeste"_L1, u"Auto teste de buck", "bucktest"_L1, "bucktest"_L1, ModuleGroup::Power, 14, "Ctrl+4"_L1},
    Module{"Tristar"_L1, u"Tristar", "tristar"_L1, "tristar"_L1, ModuleGroup::Chips, 0, "Ctrl+5"_L1},
    Module{"Tigris"_L1, u"Tigris", "tigris"_L1, "tigris"_L1, ModuleGroup::Chips, 0, "Ctrl+6"_L1},
    Module{"Acorn"_L1, u"Acorn", "acorn"_L1, "acorn"_L1, ModuleGroup::Chips, 0, "Ctrl+7"_L1},
    Module{"Chestnut"_L1, u"Chestnut", "chestnut"_L1, "chestnut"_L1, ModuleGroup::Chips, 0, "Ctrl+8"_L1},
    Module{"Bateria"_L1, u"Bateria", "battery"_L1, "battery"_L1, ModuleGroup::Chips, 0, "Ctrl+9"_L1},
    Module{"IC"_L1, u"IC", "ic"_L1, "ic"_L1, ModuleGroup::Chips, 8, "Ctrl+0"_L1},
    Module{"I2C"_L1, u"I2C", "i2c"_L1, "i2c"_L1, ModuleGroup::Tests, 9, "Ctrl+Shift+1"_L1},
    Module{"RFs"_L1, u"RF", "rf"_L1, "rf"_L1, ModuleGroup::Tests, 5, "Ctrl+Shift+2"_L1},
    Module{"RFs_Esq"_L1, u"TensoesRF", "rf"_L1, {}, ModuleGroup::Tests, 0, "Ctrl+Shift+8"_L1},
    Module{"Nand"_L1, u"NAND", "nand"_L1, "nand"_L1, ModuleGroup::Tests, 7, "Ctrl+Shift+3"_L1},
    Module{"Displays"_L1, u"Display", "display"_L1, "display"_L1, ModuleGroup::Tests, 6, "Ctrl+Shift+4"_L1},
    Module{"Outros"_L1, u"Testes Adicionais", "memory"_L1, "memory"_L1, ModuleGroup::Tests, 17, "Ctrl+Shift+5"_L1},
    Module{"Master"_L1, u"Console", "console"_L1, {}, ModuleGroup::Tools, 2, "Ctrl+Shift+6"_L1},
    Module{"zAjustes"_L1, u"Administração de comandos", "admin"_L1, {}, ModuleGroup::Tools, 0, "Ctrl+Shift+7"_L1},
    Module{"Journal"_L1, u"Diário de vistorias", "journal"_L1, {}, ModuleGroup::Tools, 0, "Ctrl+Shift+J"_L1},
    Module{"Referencias"_L1, u"Placas de referência", "record"_L1, {}, ModuleGroup::Tools, 0, "Ctrl+Shift+9"_L1},
};

std::span<const Module> modules()
{
    return kModules;
}

template <typename Value, typename Member>
static const Module *moduleWhere(Value value, Member member)
{
    const auto found = std::ranges::find_if(kModules, [&](const Module &row) { return row.*member == value; });
    return found == kModules.end() ? nullptr : &*found;
}

const Module *moduleNamed(QStringView name)
{
    return moduleWhere(name, &Module::name);
}

const Module *moduleOfCommand(QStringView command)
{
    return command.isEmpty() ? nullptr : moduleWhere(command, &Module::command);
}

const Module *moduleOfButton(int botao)
{
    return botao == 0 ? nullptr : moduleWhere(botao, &Module::botao);
}

QStringView captionKey(const Module &module, const QString &model)
{
    return module.name == "Tristar"_L1 && isNewestGeneration(model) ? QStringView(u"Hydra") : module.caption;
}

QStringView groupCaption(ModuleGroup group)
{
    static constexpr std::array<QStringView, 5> kCaptions = {u"Placa", u"Energia", u"Chips", u"Testes", u"Ferramentas"};
    return kCaptions.at(static_cast<std::size_t>(group));
}
