#pragma once

#include <QString>

#include <span>

/// The groups of the rail, in bench order.
enum class ModuleGroup
{
    Board,
    Power,
    Chips,
    Tests,
    Tools
};

/// A screen as the window offers it.
struct Module
{
    QLatin1StringView name; ///< the form's name
    QStringView caption;    ///< key
    QLatin1StringView icon;
    QLatin1StringView command; ///< as command lines name it; empty when they do not
    ModuleGroup group = ModuleGroup::Tools;
    int botao = 0; ///< index in `Botoes`; 0: it has no numbered button
    QLatin1StringView shortcut = {};
};

/// All screens in the order of the rail.
std::span<const Module> modules();

const Module *moduleNamed(QStringView name);
const Module *moduleOfCommand(QStringView command);
const Module *moduleOfButton(int botao);
/// The caption key of a screen: that of the port controller is called by the chip that the model has.
QStringView captionKey(const Module &module, const QString &model);
/// The caption key of a group.
QStringView groupCaption(ModuleGroup group);
