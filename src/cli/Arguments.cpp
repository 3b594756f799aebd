#include "cli/Arguments.h"

#include "lookup/GameIdFilter.h"

#include <QCommandLineParser>

#include <algorithm>

namespace varnhold::cli {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype gameIdLength = 9;

const QString description = uR"(Looks up the updates of a title and downloads its packages.

Commands:
  lookup ID     Lists the packages of a title.
  download ID   Downloads a package: the last one listed, or as --package or --all say.
  hosts         Shows which hosts are asked.

ID is the title's id, such as BLUS30443; small letters and a "-" are fine.

Exit codes:
  0  all went well
  1  a lookup or a download failed
  2  the arguments make no sense
  3  there is no such title or package
  4  a package has arrived, and its SHA-1 is not the document's)"_s;

void setUp(QCommandLineParser& parser)
{
    parser.setApplicationDescription(description);
    parser.addPositionalArgument(u"command"_s, u"lookup, download or hosts."_s);
    parser.addPositionalArgument(u"id"_s, u"The title's id."_s, u"[id]"_s);
    parser.addOptions({
        {u"json"_s, u"lookup: print JSON instead of a table."_s},
        {u"package"_s, u"download: the package of this version."_s, u"version"_s},
        {u"all"_s, u"download: all packages of the title."_s},
        {u"to"_s,
         u"download: into this folder, made when it is missing. Else the download folder of the settings "
         u"where "
         "that is in use, else the current folder."_s,
         u"folder"_s},
        {u"overwrite"_s, u"download: replace files that are there."_s},
        {u"root"_s, u"The program's folder, with its settings and hosts.ini."_s, u"folder"_s},
        {u"server"_s, u"Ask this update server, 1 to 6, instead of the one in the settings."_s, u"number"_s},
        {{u"h"_s, u"help"_s}, u"Show this help."_s},
        {{u"v"_s, u"version"_s}, u"Show the version."_s},
    });
}

QString readGameId(const QStringList& positional)
{
    if (positional.size() < 2)
        throw UsageError{u"\"%1\" needs the id of a title."_s.arg(positional.first())};
    if (positional.size() > 2)
        throw UsageError{u"One id at a time; \"%1\" is too much."_s.arg(positional.at(2))};
    QString bare = positional.at(1);
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
                positional.at(1))};
    return id;
}

/// Refuses options that belong to another command.
void checkOptions(const QCommandLineParser& parser, const QString& command, const QStringList& allowed)
{
    for (const QString& name : {u"json"_s, u"package"_s, u"all"_s, u"to"_s, u"overwrite"_s, u"server"_s})
        if (parser.isSet(name) && !allowed.contains(name))
            throw UsageError{u"--%1 does not go with \"%2\"."_s.arg(name, command)};
}

int readServer(const QString& text)
{
    bool isNumber = false;
    const int server = text.toInt(&isNumber);
    if (!isNumber || server < 1 || server > 6)
        throw UsageError{u"--server takes a number from 1 to 6, not \"%1\"."_s.arg(text)};
    return server;
}

} // namespace

Arguments readArguments(const QStringList& arguments)
{
    QCommandLineParser parser;
    setUp(parser);
    if (!parser.parse(arguments))
        throw UsageError{parser.errorText()};
    Arguments read;
    if (parser.isSet(u"help"_s))
        return read;
    if (parser.isSet(u"version"_s)) {
        read.command = Command::Version;
        return read;
    }
    const QStringList positional = parser.positionalArguments();
    if (positional.isEmpty())
        throw UsageError{u"A command is missing: lookup, download or hosts."_s};
    for (const QString& name : {u"root"_s, u"to"_s, u"package"_s})
        if (parser.isSet(name) && parser.value(name).isEmpty())
            throw UsageError{u"--%1 needs a value."_s.arg(name)};

    const QString& command = positional.first();
    if (command == u"lookup") {
        read.command = Command::Lookup;
        checkOptions(parser, command, {u"json"_s, u"server"_s});
        read.gameId = readGameId(positional);
    } else if (command == u"download") {
        read.command = Command::Download;
        checkOptions(parser, command, {u"package"_s, u"all"_s, u"to"_s, u"overwrite"_s, u"server"_s});
        read.gameId = readGameId(positional);
        if (parser.isSet(u"all"_s) && parser.isSet(u"package"_s))
            throw UsageError{u"--all and --package exclude each other."_s};
    } else if (command == u"hosts") {
        read.command = Command::Hosts;
        checkOptions(parser, command, {});
        if (positional.size() > 1)
            throw UsageError{u"\"hosts\" takes no id."_s};
    } else {
        throw UsageError{u"There is no command \"%1\"."_s.arg(command)};
    }
    read.json = parser.isSet(u"json"_s);
    read.packageVersion = parser.value(u"package"_s);
    read.all = parser.isSet(u"all"_s);
    read.folder = parser.value(u"to"_s);
    read.overwrite = parser.isSet(u"overwrite"_s);
    read.root = parser.value(u"root"_s);
    if (parser.isSet(u"server"_s))
        read.server = readServer(parser.value(u"server"_s));
    return read;
}

QString helpText()
{
    QCommandLineParser parser;
    setUp(parser);
    return parser.helpText();
}

} // namespace varnhold::cli
