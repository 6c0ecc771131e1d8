#include "arguments.h"

#include "complaint.h"
#include "models.h"
#include "phoneprofile.h"
#include "screentable.h"
#include "storecommands.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <array>
#include <functional>
#include <iostream>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLongestTimeoutSeconds = 24 * 60 * 60;

using Commands = std::vector<std::pair<CLI::App *, Arguments::Command>>;

CLI::Option *addText(CLI::App &app, const char *name, QString &target, const char *help)
{
    return app.add_option_function<std::string>(
        name, [&target](const std::string &text) { target = QString::fromStdString(text); }, help);
}

std::vector<std::string> modelChoices()
{
    std::vector<std::string> choices;
    for (const QString &model : modelNames())
        choices.push_back(model.toStdString());
    return choices;
}

void addCommon(CLI::App &app, CommonOptions &common)
{
    addText(app, "--home", common.home, "folder of the store");
    app.add_option_function<std::string>(
           "--lang",
           [&common](const std::string &text) {
               common.language = text == "pt"   ? Language::Portuguese
                                 : text == "en" ? Language::English
                                                : Language::Spanish;
           },
           "language of the output: pt, en or es (else as the store says)")
        ->check(CLI::IsMember({"pt", "en", "es"}));
    app.add_flag("--json", common.json, "print one JSON object");
}

void addModel(CLI::App &app, CommonOptions &common, const char *help)
{
    addText(app, "--model", common.model, help)->check(CLI::IsMember(modelChoices()));
}

void addTimeout(CLI::App &app, CommonOptions &common)
{
    app.add_option_function<int>(
           "--timeout", [&common](int seconds) { common.timeout = std::chrono::seconds(seconds); },
           "give up after so many seconds")
        ->check(CLI::Range(1, kLongestTimeoutSeconds, "seconds"));
}

CLI::Option *addPort(CLI::App &app, CommonOptions &common)
{
    CLI::Option *port = addText(app, "--port", common.port, "COMn, n, a device path, or sim:MODEL[,fault...]");
    port->required();
    addTimeout(app, common);
    return port;
}

CLI::Option *addReply(CLI::App &app, QString &replyFile)
{
    return addText(app, "--reply", replyFile, "file with the bytes as the phone sent them; - reads standard input");
}

bool isOfReport(const CLI::Option *option)
{
    static const std::array kNames = {"report-url", "pdf", "name", "date"};
    return std::ranges::any_of(kNames, [option](const char *name) { return option->check_lname(name); });
}

void addScreenOption(CLI::App &app, const ScreenOption &option, QMap<QString, QString> &given)
{
    const auto take = [&given, name = QString::fromLatin1(option.name)](const std::string &text) {
        given.insert(name, QString::fromStdString(text));
    };
    if (option.takes == ScreenOption::Takes::Nothing) {
        app.add_flag_callback(
            option.name, [take] { take({}); }, option.help);
        return;
    }
    CLI::Option *added = app.add_option_function<std::string>(option.name, take, option.help);
    added->required(option.need == ScreenOption::Need::Required);
    if (!option.choices.empty())
        added->check(CLI::IsMember(std::vector<std::string>(option.choices.begin(), option.choices.end())));
    if (option.complaint)
        added->check(option.complaint);
    if (option.preset)
        added->default_str(option.preset);
}

void addScreenOptions(CLI::App &app, const ScreenCommand &screen, ScreenOption::Use use, ScreenOptions &options)
{
    CLI::App *alternatives = nullptr;
    for (const ScreenOption &option : screen.options) {
        if (option.use == ScreenOption::Use::OnPhone && use != option.use)
            continue;
        const bool isAlternative = option.need == ScreenOption::Need::OneOf;
        if (isAlternative && !alternatives) {
            alternatives = app.add_option_group("one of");
            alternatives->require_option(1);
        }
        addScreenOption(isAlternative ? *alternatives : app, option, options.given);
    }
}

void addReport(CLI::App &app, const ScreenCommand &screen, ReportWish &wish)
{
    const auto take = [](std::optional<QString> &target) {
        return [&target](const std::string &text) { target = QString::fromStdString(text); };
    };
    app.add_flag("--report-url", wish.address, "print the address of the report instead");
    addText(app, "--pdf", wish.pdf, "write the report to this file")->check(emptyComplaint);
    app.add_option_function<std::string>("--name", take(wish.name), "name on the report (else as the store says)");
    app.add_option_function<std::string>("--date", take(wish.date), "date of the report (else today)");
    if (screen.reported == Reported::No)
        for (CLI::Option *option : app.get_options(isOfReport))
            option->group(""); // taken only to say which screens have it
}

std::string reportedScreens()
{
    std::string names;
    for (const ScreenCommand *screen : screenCommands())
        if (screen->reported == Reported::Yes)
            names += (names.empty() ? "" : ", ") + std::string(screen->command.data());
    return names;
}

void checkReport(const ScreenCommand &screen, const ReportWish &wish)
{
    if (wish.isWanted() && screen.reported == Reported::No)
        throw CLI::ValidationError(std::string(screen.command.data()) +
                                   " has no report; these have: " + reportedScreens());
    if (!wish.isWanted() && (wish.name || wish.date))
        throw CLI::ValidationError("--name and --date go with --report-url or --pdf");
}

/// `run` and `judge` have one subcommand per screen.
void addScreens(CLI::App &parent, Arguments &arguments, ScreenOption::Use use,
                const std::function<void(CLI::App &)> &addOwn)
{
    parent.require_subcommand(1);
    for (const ScreenCommand *screen : screenCommands()) {
        CLI::App *app = parent.add_subcommand(screen->command.data(), screen->help.data());
        addCommon(*app, arguments.common);
        addScreenOptions(*app, *screen, use, arguments.screen);
        addReport(*app, *screen, arguments.screen.report);
        addOwn(*app);
        app->final_callback([&arguments, screen] {
            checkReport(*screen, arguments.screen.report);
            arguments.screen.screen = screen->command;
        });
    }
}

void addStore(CLI::App &app, Arguments &arguments, Commands &commands)
{
    CLI::App *store = app.add_subcommand("store", "the reference store");
    store->require_subcommand(1);
    for (const StoreCommand &command : storeCommands()) {
        CLI::App *word = store->add_subcommand(command.name, command.help);
        addCommon(*word, arguments.common);
        if (command.first.name)
            addText(*word, command.first.name, arguments.text, command.first.help)->required(command.first.required);
        if (command.second.name)
            addText(*word, command.second.name, arguments.value, command.second.help)->required();
        word->final_callback([&arguments, &command] { arguments.storeCommand = &command; });
        commands.emplace_back(word, Arguments::Command::Store);
    }
}

void addCommand(CLI::App &app, ConsoleOptions &console)
{
    addText(app, "--command", console.command, "the command line")->required()->check(commandComplaint);
}

CLI::App *addRecord(CLI::App &app, Arguments &arguments)
{
    CLI::App *record = app.add_subcommand("record", "keep a known-good phone's reply to a command");
    addCommon(*record, arguments.common);
    addCommand(*record, arguments.console);
    addPort(*record, arguments.common);
    addModel(*record, arguments.common, "model of the phone (else detected)");
    return record;
}

/// Every reading that fits the model; what takes long only when it is asked for.
CLI::App *addSurvey(CLI::App &app, Arguments &arguments)
{
    CLI::App *survey = app.add_subcommand("survey", "every reading that fits the model, one table of findings");
    addCommon(*survey, arguments.common);
    addPort(*survey, arguments.common);
    addModel(*survey, arguments.common, "model of the phone (else detected)");
    survey
        ->add_option_function<std::vector<std::string>>(
            "--with",
            [&arguments](const std::vector<std::string> &extras) {
                for (const std::string &extra : extras)
                    arguments.survey.extras |= extra == "syscfg" ? SurveyExtra::Syscfg : SurveyExtra::Memory;
            },
            "what takes long as well")
        ->check(CLI::IsMember({"syscfg", "memory"}))
        ->delimiter(',');
    addText(*survey, "--pdf", arguments.survey.pdfFile, "write the report to this file")->check(emptyComplaint);
    addText(*survey, "--name", arguments.survey.name, "who surveys (else as the store says)");
    addText(*survey, "--note", arguments.survey.note, "a note on the board, for the journal");
    survey->add_flag_callback(
        "--no-journal", [&arguments] { arguments.survey.journaling = Journaling::None; }, "leave the journal as it is");
    return survey;
}

/// Either a phone is asked, or a saved reply of a known model is taken.
CLI::App *addCompare(CLI::App &app, Arguments &arguments)
{
    CLI::App *compare = app.add_subcommand("compare", "hold a phone's reply against the recorded one");
    addCommon(*compare, arguments.common);
    addCommand(*compare, arguments.console);
    addModel(*compare, arguments.common, "model of the phone (else detected; needed with --reply)");
    compare->add_option("--tolerance", arguments.console.tolerance, "numbers apart by so many per cent are alike")
        ->check(CLI::Range(0.0, 100.0))
        ->capture_default_str();
    CLI::Option *port = addPort(*compare, arguments.common)->required(false);
    CLI::Option *reply = addReply(*compare, arguments.console.replyFile)->excludes(port);
    reply->needs(compare->get_option("--model"));
    compare->final_callback([port, reply] {
        if (port->count() == 0 && reply->count() == 0)
            throw CLI::RequiredError("--port or --reply");
    });
    return compare;
}

Commands addCommands(CLI::App &app, Arguments &arguments)
{
    CLI::App *ports = app.add_subcommand("ports", "list the serial ports");
    addCommon(*ports, arguments.common);

    CLI::App *detect = app.add_subcommand("detect", "tell the model of the phone");
    CLI::App *send = app.add_subcommand("send", "send one command line and print the reply");
    for (CLI::App *live : {detect, send}) {
        addCommon(*live, arguments.common);
        addPort(*live, arguments.common);
    }
    addText(*send, "command", arguments.text, "the command line")->required()->check(commandComplaint);
    addText(*send, "--log", arguments.logFile, "take the exchange down in this file, with times");

    CLI::App *run = app.add_subcommand("run", "ask the phone, judge, print");
    addScreens(*run, arguments, ScreenOption::Use::OnPhone, [&arguments](CLI::App &screen) {
        addPort(screen, arguments.common);
        addModel(screen, arguments.common, "model of the phone (else detected)");
    });
    CLI::App *judge = app.add_subcommand("judge", "judge a saved reply; no phone needed");
    addScreens(*judge, arguments, ScreenOption::Use::Always, [&arguments](CLI::App &screen) {
        addModel(screen, arguments.common, "model of the phone");
        screen.get_option("--model")->required();
        addReply(screen, arguments.screen.replyFile)->required();
        addTimeout(screen, arguments.common);
    });

    CLI::App *record = addRecord(app, arguments);
    CLI::App *compare = addCompare(app, arguments);
    CLI::App *survey = addSurvey(app, arguments);
    CLI::App *sim = app.add_subcommand("sim", "run a simulated phone and print its device path");
    addText(*sim, "phone", arguments.text, "MODEL[,fault...], for example \"IP 7,ldo2=1200\"")->required();
    sim->footer("Faults: " + faultHelp().toStdString() +
                "\nRails and devices differ from model to model; a fault that is not known lists them all.");

    Commands commands{{ports, Arguments::Command::Ports},     {detect, Arguments::Command::Detect},
                      {send, Arguments::Command::Send},       {run, Arguments::Command::Run},
                      {judge, Arguments::Command::Judge},     {record, Arguments::Command::Record},
                      {compare, Arguments::Command::Compare}, {survey, Arguments::Command::Survey},
                      {sim, Arguments::Command::Sim}};
    addStore(app, arguments, commands);
    return commands;
}

const CLI::App &innermost(const CLI::App &app)
{
    const auto chosen = app.get_subcommands();
    return chosen.empty() ? app : innermost(*chosen.front());
}

/// The words that lead to a command, the program's name first.
std::string fullName(const CLI::App &app)
{
    return app.get_parent() ? fullName(*app.get_parent()) + ' ' + app.get_name() : app.get_name();
}

/// What is wrong in one line, with the help that fits.
std::string complaint(const CLI::App *app, const CLI::Error &error)
{
    const CLI::App &where = innermost(*app);
    const auto unknown = app->remaining(true);
    const bool noSuchCommand = error.get_exit_code() == static_cast<int>(CLI::ExitCodes::RequiredError) &&
                               !where.get_subcommands({}).empty() && !unknown.empty();
    const std::string what = noSuchCommand ? "No such command: " + unknown.front() : error.what();
    return "prelt: " + what + ". Try: " + fullName(where) + " --help\n";
}

} // namespace

std::variant<Arguments, ExitCode> parseArguments(int argc, char **argv)
{
    Arguments arguments;
    CLI::App app("Reads and judges phone logic boards over a serial Box.", "prelt");
    app.set_version_flag("--version", "2.22");
    app.require_subcommand(1);
    app.failure_message(complaint);
    app.footer("Exit codes: 0 good, 1 fault found, 2 wrong usage, 3 the link failed, 4 the store failed, "
               "5 incomplete; of several the first of 3, 1, 4, 5.");
    const Commands commands = addCommands(app, arguments);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        return app.exit(error) == 0 ? ExitCode::Good : ExitCode::Usage;
    }
    for (const auto &[subcommand, command] : commands)
        if (subcommand->parsed())
            arguments.command = command;
    return arguments;
}
