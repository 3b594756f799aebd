#include "cli/Arguments.h"

#include "cli/Commands.h"
#include "lookup/GameIdFilter.h"

#include <QCommandLineParser>

#include <algorithm>

namespace varnhold::cli {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype gameIdLength = 9;

const QString purpose =
    u"Looks up the updates of a title, downloads its packages, fetches covers, and searches and keeps "
    "the game database."_s;

const QString exitCodes = uR"(ID is a title's id, such as BLUS30443; small letters and a "-" are fine.

Exit codes:
  0  all went well
  1  a lookup, a download, a cover, a check or the work on a database or on folders failed
  2  the arguments, or a line of a list, make no sense
  3  there is no such title, package or cover, or nothing was found
  4  a package has arrived, and its SHA-1 is not the document's
  5  there is a newer version of the program, or a longer id list)"_s;

QString usageOf(const Command& command)
{
    return command.operands.isEmpty() ? command.name : command.name + u' ' + command.operands;
}

QString description()
{
    qsizetype width = 0;
    for (const Command& command : commands())
        width = std::max(width, usageOf(command).size());
    QString text = purpose + u"\n\nCommands:\n"_s;
    for (const Command& command : commands())
        text += u"  "_s + usageOf(command).leftJustified(width + 2) + command.help + u'\n';
    return text + u"\n\"varnhold-cli COMMAND --help\" shows a command's options.\n\n"_s + exitCodes;
}

void addOption(QCommandLineParser& parser, const Option& option)
{
    parser.addOption(QCommandLineOption(option.name, option.help, option.value));
}

void addCommonOptions(QCommandLineParser& parser)
{
    addOption(parser, {u"root"_s, u"The program's folder, with its settings and hosts.ini."_s, u"folder"_s});
    parser.addOption({{u"h"_s, u"help"_s}, u"Show this help."_s});
    parser.addOption({{u"v"_s, u"version"_s}, u"Show the version."_s});
}

/// Every option once, of whichever command: a command's options may stand before its name.
QList<Option> allOptions()
{
    QList<Option> all;
    for (const Command& command : commands())
        for (const Option& option : command.options)
            if (std::ranges::find(std::as_const(all), option.name, &Option::name) == all.cend())
                all.append(option);
    return all;
}

QString commandNames()
{
    QStringList names;
    for (const Command& command : commands())
        names.append(command.name);
    const QString last = names.takeLast();
    return names.join(u", "_s) + u" or "_s + last;
}

} // namespace

QString Arguments::value(const QString& option) const
{
    const auto found = options.constFind(option);
    return found == options.cend() || found->isEmpty() ? QString() : found->last();
}

Arguments readArguments(const QStringList& arguments)
{
    const QList<Option> known = allOptions();
    QCommandLineParser parser;
    for (const Option& option : known)
        addOption(parser, option);
    addCommonOptions(parser);
    if (!parser.parse(arguments))
        throw UsageError{parser.errorText()};

    Arguments read;
    read.help = parser.isSet(u"help"_s);
    read.version = parser.isSet(u"version"_s);
    read.operands = parser.positionalArguments();
    if (!read.operands.isEmpty()) {
        const QString name = read.operands.takeFirst();
        const auto found = std::ranges::find(commands(), name, &Command::name);
        if (found == commands().cend())
            throw UsageError{u"There is no command \"%1\"."_s.arg(name)};
        read.command = &*found;
    }
    if (read.help || read.version)
        return read;
    if (read.command == nullptr)
        throw UsageError{u"A command is missing: %1."_s.arg(commandNames())};

    const auto requireValue = [&](const QString& name) {
        if (parser.values(name).contains(QString()))
            throw UsageError{u"--%1 needs a value."_s.arg(name)};
    };
    for (const Option& option : known) {
        if (!parser.isSet(option.name))
            continue;
        const QList<Option>& own = read.command->options;
        if (std::ranges::find(own, option.name, &Option::name) == own.cend())
            throw UsageError{u"--%1 does not go with \"%2\"."_s.arg(option.name, read.command->name)};
        requireValue(option.name);
        read.options.insert(option.name, parser.values(option.name));
    }
    requireValue(u"root"_s);
    read.root = parser.value(u"root"_s);
    return read;
}

QString helpText(const Arguments& arguments)
{
    QCommandLineParser parser;
    if (arguments.command != nullptr) {
        parser.setApplicationDescription(arguments.command->help);
        parser.addPositionalArgument(arguments.command->name, {}, usageOf(*arguments.command));
        for (const Option& option : arguments.command->options)
            addOption(parser, option);
    } else {
        parser.setApplicationDescription(description());
        parser.addPositionalArgument(u"command"_s, commandNames() + u'.', u"command ..."_s);
    }
    addCommonOptions(parser);
    return parser.helpText();
}

int numberOf(const Arguments& arguments, const QString& option, int least, int most, int otherwise)
{
    if (!arguments.has(option))
        return otherwise;
    const QString text = arguments.value(option);
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber || number < least || number > most)
        throw UsageError{
            u"--%1 takes a number from %2 to %3, not \"%4\"."_s.arg(option).arg(least).arg(most).arg(text)};
    return number;
}

QString readGameId(const QString& text)
{
    QString bare = text;
    bare.remove(u'-').remove(u' ');
    QString id;
    const bool typed = std::ranges::all_of(std::as_const(bare), [&](QChar character) {
        const FilteredKey key = filterTypedCharacter(character);
        id += key.character;
        return key.outcome == TypedCharacter::Accepted && key.character.isPrint();
    });
    if (!typed || id.size() != gameIdLength)
        throw UsageError{
            u"\"%1\" is no id: an id has nine characters, letters and digits, such as BLUS30443."_s.arg(
                text)};
    return id;
}

QString gameIdOf(const Arguments& arguments)
{
    if (arguments.operands.isEmpty())
        throw UsageError{u"\"%1\" needs the id of a title."_s.arg(arguments.command->name)};
    if (arguments.operands.size() > 1)
        throw UsageError{u"One id at a time; \"%1\" is too much."_s.arg(arguments.operands.at(1))};
    return readGameId(arguments.operands.first());
}

void refuseOperands(const Arguments& arguments)
{
    if (!arguments.operands.isEmpty())
        throw UsageError{u"\"%1\" takes nothing; \"%2\" is too much."_s.arg(arguments.command->name,
                                                                            arguments.operands.first())};
}

} // namespace varnhold::cli
