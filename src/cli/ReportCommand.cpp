#include "cli/Arguments.h"
#include "cli/DatabaseAccess.h"
#include "cli/Session.h"
#include "cli/TitleLookup.h"
#include "lookup/UpdateList.h"
#include "platform/RunTimeError.h"
#include "platform/richtext/RtfWriter.h"
#include "tools/ReportFile.h"
#include "tools/ReportText.h"

#include <QFileInfo>

#include <iterator>

namespace varnhold::cli {

using namespace Qt::StringLiterals;

namespace {

/// In the order of ReportLines::Line.
constexpr const char* fieldNames[] = {"id", "pkg", "sys", "size", "sha1", "link"};
static_assert(std::size(fieldNames) == ReportLines::Labels);

ReportLines::Line fieldOf(const QString& name)
{
    for (std::size_t i = 0; i < std::size(fieldNames); ++i) {
        if (name == QLatin1StringView(fieldNames[i]))
            return static_cast<ReportLines::Line>(i);
    }
    throw UsageError{
        u"\"%1\" is no field of a report; there are id, pkg, sys, size, sha1 and link."_s.arg(name)};
}

/// What the arguments say over the settings. Throws UsageError.
struct Wishes
{
    explicit Wishes(const Arguments& arguments)
        : hasFields(arguments.has(u"fields"_s)),
          frontText(arguments.has(u"front-text"_s)),
          noFrontText(arguments.has(u"no-front-text"_s))
    {
        if (frontText && noFrontText)
            throw UsageError{u"--front-text and --no-front-text exclude each other."_s};
        if (hasFields) {
            for (const QString& name : arguments.value(u"fields"_s).split(u','))
                fields.set(fieldOf(name.trimmed().toLower()), true);
        }
    }

    [[nodiscard]] ReportLines over(const Settings& settings) const
    {
        const ReportLines stored(settings);
        ReportLines lines = hasFields ? fields : stored;
        lines.set(ReportLines::Labels, frontText || (!noFrontText && stored.has(ReportLines::Labels)));
        return lines;
    }

    ReportLines fields;
    bool hasFields;
    bool frontText;
    bool noFrontText;
};

QString textOf(const ReportLines& lines, const QString& gameId, const TitleUpdates& updates)
{
    UpdateList list;
    for (const Package& package : updates.packages) {
        list.addRow(package.version);
        list.setSubItem(list.count(), UpdateList::Version, package.systemVersion);
        list.setSubItem(list.count(), UpdateList::Size, package.sizeText);
        list.setSubItem(list.count(), UpdateList::Binary, package.sha1);
        list.setSubItem(list.count(), UpdateList::Url, package.url);
    }
    return reportText(lines, gameId, updates.title, list);
}

void printText(Terminal& terminal, const QString& text)
{
    QStringList lines = text.chopped(2).split(u"\r\n"_s); // the terminal ends the last one
    for (QString& line : lines) {
        QStringList parts = line.split(u'\t');
        for (QString& part : parts)
            part = printable(part);
        line = parts.join(u'\t');
    }
    terminal.print(lines.join(u'\n'));
}

/// Throws RunTimeError with a sentence.
void writeFile(const Arguments& arguments, Terminal& terminal, const QString& text)
{
    const QString path = arguments.value(u"rtf"_s);
    if (path == u"-") {
        terminal.printRaw(writeRtf(reportContents(text)));
        return;
    }
    keepWhatIsThere(arguments, path);
    try {
        saveReport(QFileInfo(path).absoluteFilePath(), reportContents(text));
    } catch (const RunTimeError& error) {
        throw RunTimeError(error.number(), u"%1 cannot be written: %2."_s.arg(path, error.description()));
    }
}

ExitCode run(const Arguments& arguments, Terminal& terminal)
{
    const QString gameId = gameIdOf(arguments);
    const Wishes wishes(arguments);
    Session session(arguments, terminal);
    const TitleUpdates updates = lookUp(session, gameId);
    const bool found = updates.outcome == TitleUpdates::Outcome::Found;
    const QString text = textOf(wishes.over(session.settings()), gameId, updates);
    // Of a damaged document, what could be read is shown.
    if (!text.isEmpty() && (found || !updates.packages.isEmpty())) {
        if (arguments.has(u"rtf"_s))
            writeFile(arguments, terminal, text);
        else
            printText(terminal, text);
    }
    if (found)
        return ExitCode::Fine;
    terminal.complain(updates.problem);
    return updates.outcome == TitleUpdates::Outcome::NoSuchTitle ? ExitCode::NoSuchTitle : ExitCode::Failed;
}

} // namespace

Command reportCommand()
{
    return {
        u"report"_s,
        u"ID"_s,
        u"Prints the report of a title's packages."_s,
        {{u"fields"_s, u"Its lines, of id, pkg, sys, size, sha1 and link, instead of the settings'."_s,
          u"list"_s},
         {u"front-text"_s, u"Name each line, whatever the settings say."_s},
         {u"no-front-text"_s, u"Name no line, whatever the settings say."_s},
         {u"rtf"_s, u"Write it to this file as rich text instead; \"-\" is standard output."_s, u"file"_s},
         overwriteOption(),
         serverOption(),
         timeoutOption()},
        run};
}

} // namespace varnhold::cli
