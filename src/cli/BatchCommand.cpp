#include "cli/Arguments.h"
#include "cli/BatchLines.h"
#include "cli/Commands.h"
#include "cli/Interrupt.h"
#include "cli/PackageFetch.h"
#include "cli/PackagePlaces.h"
#include "cli/Session.h"
#include "platform/MessagePump.h"
#include "platform/ReadFile.h"
#include "platform/RunTimeError.h"
#include "state/HostAccess.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <cstdio>
#include <deque>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

namespace varnhold::cli {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostJobs = 5;
constexpr std::int64_t mostBytes = 64 << 20;

QString counted(qsizetype count, const QString& what)
{
    return u"%1 %2"_s.arg(count).arg(what);
}

/// Looks titles up one after the other, while the packages that are known already come, several at once.
class Batch : public QObject
{
public:
    Batch(const Arguments& arguments, Session& session, int jobs)
        : m_arguments(arguments), m_session(session), m_terminal(session.terminal()), m_jobs(jobs)
    {
    }

    ExitCode run(const QList<BatchLine>& lines)
    {
        for (const BatchLine& line : lines)
            take(line);
        m_lookedUp = true;
        EventLoopPump pump;
        while (!m_waiting.empty() || !m_running.empty())
            pump.pumpNext();
        m_finished.clear();
        summarize();
        return m_code;
    }

private:
    struct Item
    {
        int line = 0;
        QString name; ///< for the user: "BLUS30443 01.02"; of a bare address, its file's name
        Package package;
        PackageTarget target = {};
    };
    struct Running
    {
        Item item;
        std::unique_ptr<PackageFetch> fetch;
    };
    struct Place
    {
        int line = 0;
        QString url;
    };

    void take(const BatchLine& line);
    void takeTitle(const BatchLine& line);
    void takePackage(Item item, const QString& folder);
    void startSoon();
    void startMore();
    void begin(Item item);
    void end(PackageFetch& fetch);
    void arrive(const Item& item, PackageFetch& fetch);
    void skip(const Item& item);
    void fail(int line, const QString& sentence, ExitCode code = ExitCode::Failed);
    void note(int line, ExitCode code);
    void showProgress();
    void summarize();
    void leave();

    const Arguments& m_arguments;
    Session& m_session;
    Terminal& m_terminal;
    const int m_jobs;
    const Interrupt m_interrupt{[this] { leave(); }};
    FetchThreads m_threads;
    std::deque<Item> m_waiting;
    std::vector<Running> m_running;  ///< the one that began first is the first
    std::vector<Running> m_finished; ///< not deleted from inside their own signals
    QHash<QString, Place> m_places;  ///< by the path of a package
    ExitCode m_code = ExitCode::Fine;
    int m_codeLine = std::numeric_limits<int>::max(); ///< the first line that did not go well
    qsizetype m_packages = 0;
    qsizetype m_arrived = 0;
    qsizetype m_there = 0;
    qsizetype m_failed = 0;
    qsizetype m_none = 0;
    bool m_startIsDue = false;
    bool m_lookedUp = false;
    bool m_leaves = false;
};

void Batch::take(const BatchLine& line)
{
    switch (line.kind) {
    case BatchLine::Kind::None:
        ++m_none;
        note(line.number, ExitCode::Usage);
        m_terminal.complain(
            printable(u"line %1: \"%2\" %3."_s.arg(line.number).arg(line.text, line.problem)));
        break;
    case BatchLine::Kind::Title:
        takeTitle(line);
        break;
    case BatchLine::Kind::Url:
        try {
            Package package;
            package.url = reachableUrl(m_session.hosts(), line.text);
            takePackage({line.number, packageFileName(line.text), package},
                        packageFolder(m_arguments, m_session.settings(), {}, {}));
        } catch (const RunTimeError& error) {
            fail(line.number, error.description());
        }
        break;
    }
}

void Batch::takeTitle(const BatchLine& line)
{
    const TitleUpdates updates = lookUp(m_session, line.text);
    if (updates.outcome != TitleUpdates::Outcome::Found) {
        const bool isKnown = updates.outcome != TitleUpdates::Outcome::NoSuchTitle;
        fail(line.number, updates.problem.isEmpty() ? line.text : updates.problem,
             isKnown ? ExitCode::Failed : ExitCode::NoSuchTitle);
        return;
    }
    if (updates.packages.isEmpty()) {
        fail(line.number, u"%1 has no packages."_s.arg(line.text), ExitCode::NoSuchTitle);
        return;
    }
    try {
        const QString folder = packageFolder(m_arguments, m_session.settings(), line.text, updates.title);
        const bool latest = m_arguments.has(u"latest"_s);
        for (const Package& package : latest ? updates.packages.last(1) : updates.packages)
            takePackage({line.number, line.text + u' ' + package.version, package}, folder);
    } catch (const RunTimeError& error) {
        fail(line.number, error.description());
    }
}

void Batch::takePackage(Item item, const QString& folder)
{
    ++m_packages;
    try {
        item.target = targetOf(item.package, folder, m_arguments.has(u"overwrite"_s));
    } catch (const RunTimeError& error) {
        fail(item.line, u"%1: %2"_s.arg(item.name, error.description()));
        return;
    }
    const auto place = m_places.constFind(item.target.path);
    if (place == m_places.cend()) {
        m_places.insert(item.target.path, {item.line, item.package.url});
        m_waiting.push_back(std::move(item));
        startSoon();
    } else if (place->url == item.package.url) {
        --m_packages;
        m_terminal.print(
            printable(u"%1  %2  is in line %3 already"_s.arg(item.name, item.target.path).arg(place->line)));
    } else {
        fail(item.line,
             u"%1: %2 is the place of another package, that of line %3."_s.arg(item.name, item.target.path)
                 .arg(place->line));
    }
}

/// From the event loop, and so from inside no signal of a fetch.
void Batch::startSoon()
{
    if (!std::exchange(m_startIsDue, true))
        QMetaObject::invokeMethod(
            this, [this] { startMore(); }, Qt::QueuedConnection);
}

void Batch::startMore()
{
    m_startIsDue = false;
    m_finished.clear();
    while (!m_waiting.empty() && m_running.size() < static_cast<std::size_t>(m_jobs)) {
        Item item = std::move(m_waiting.front());
        m_waiting.pop_front();
        const int line = item.line;
        const QString name = item.name;
        try {
            begin(std::move(item));
        } catch (const RunTimeError& error) {
            fail(line, u"%1: %2"_s.arg(name, error.description()));
        }
    }
    showProgress();
}

void Batch::begin(Item item)
{
    if (const std::optional<SumAgreement> agreement = standsAlready(item.package, item.target)) {
        const std::optional<qint64>& size = item.target.size;
        if (*agreement == SumAgreement::NotGiven && size && *size != QFileInfo(item.target.path).size())
            throw RunTimeError(errors::fileExists,
                               u"%1 is there already and is not that package; --overwrite replaces it."_s.arg(
                                   item.target.path));
        skip(item);
        return;
    }
    if (m_arguments.has(u"dry-run"_s)) {
        ++m_arrived;
        m_terminal.print(printable(u"%1  %2  would be downloaded"_s.arg(item.name, item.target.path)));
        return;
    }
    requireFolder(QFileInfo(item.target.path).path());
    auto owned =
        std::make_unique<PackageFetch>(item.package.url, item.target, m_session.patience(), m_threads);
    PackageFetch& fetch = *owned;
    m_running.push_back({std::move(item), std::move(owned)});
    connect(&fetch, &PackageFetch::progress, this, &Batch::showProgress);
    connect(&fetch, &PackageFetch::ended, this, [this, &fetch] { end(fetch); });
    fetch.start();
}

void Batch::end(PackageFetch& fetch)
{
    const auto at = std::ranges::find_if(
        m_running, [&](const Running& running) { return running.fetch.get() == &fetch; });
    m_finished.push_back(std::move(*at));
    m_running.erase(at);
    if (m_leaves)
        return;
    const Item item = m_finished.back().item;
    if (fetch.hasArrived())
        arrive(item, fetch);
    else
        fail(item.line, u"%1: %2"_s.arg(item.name, fetch.problem()));
    startSoon();
}

void Batch::arrive(const Item& item, PackageFetch& fetch)
{
    const QString& path = item.target.path;
    const QString line = u"%1  %2  %3 bytes"_s.arg(item.name, path).arg(QFileInfo(path).size());
    try {
        const SumAgreement agreement = compareSum(path, item.package.sha1, fetch.takeSums());
        if (agreement == SumAgreement::Neither) {
            fail(item.line, u"%1: %2: %3"_s.arg(item.name, path, agreementText(agreement)),
                 ExitCode::SumDiffers);
            return;
        }
        ++m_arrived;
        m_terminal.print(printable(agreement == SumAgreement::NotGiven ? line : line + u", SHA-1 agrees"_s));
    } catch (const RunTimeError& error) {
        fail(item.line, u"%1: %2"_s.arg(item.name, error.description()));
    }
}

void Batch::skip(const Item& item)
{
    ++m_there;
    m_terminal.print(printable(u"%1  %2  is there already"_s.arg(item.name, item.target.path)));
}

void Batch::fail(int line, const QString& sentence, ExitCode code)
{
    ++m_failed;
    note(line, code);
    m_terminal.complain(printable(u"line %1: %2"_s.arg(line).arg(sentence)));
}

/// Packages end in any order; the code is that of the first line.
void Batch::note(int line, ExitCode code)
{
    if (line < m_codeLine) {
        m_codeLine = line;
        m_code = code;
    }
}

void Batch::showProgress()
{
    if (m_running.empty())
        return;
    const qsizetype open = static_cast<qsizetype>(m_waiting.size() + m_running.size());
    const Running& first = m_running.front();
    m_terminal.showProgress(u"%1 of %2%3 done, %4 under way;  %5"_s.arg(m_packages - open)
                                .arg(m_packages)
                                .arg(m_lookedUp ? QString() : u" so far"_s)
                                .arg(m_running.size())
                                .arg(progressLine(first.item.name, first.fetch->labels())));
}

void Batch::summarize()
{
    const bool isDry = m_arguments.has(u"dry-run"_s);
    QStringList parts = {counted(m_arrived, isDry ? u"to download"_s : u"downloaded"_s),
                         counted(m_there, u"there already"_s), counted(m_failed, u"failed"_s)};
    if (m_none > 0)
        parts.append(m_none == 1 ? u"1 line that is none"_s : counted(m_none, u"lines that are none"_s));
    if (m_leaves)
        parts.append(u"the rest was left"_s);
    m_terminal.print(parts.join(u", "_s));
}

/// Takes what is half there from the disk, and ends the program where it stands, be it in a lookup.
void Batch::leave()
{
    m_leaves = true;
    while (!m_running.empty())
        m_running.back().fetch->giveUp({});
    summarize();
    m_interrupt.passOn();
}

/// Throws RunTimeError with a sentence.
QString textOf(const QString& file)
{
    if (file == u"-") {
        QFile in;
        if (in.open(stdin, QIODevice::ReadOnly))
            return QString::fromUtf8(in.read(mostBytes));
        throw RunTimeError(errors::pathFileAccess, u"The standard input cannot be read."_s);
    }
    try {
        return QString::fromUtf8(readFile(file, mostBytes));
    } catch (const RunTimeError& error) {
        throw RunTimeError(error.number(), u"\"%1\" cannot be read: %2."_s.arg(file, error.description()));
    }
}

ExitCode run(const Arguments& arguments, Terminal& terminal)
{
    if (arguments.operands.size() != 1)
        throw UsageError{u"\"batch\" needs the name of one list, or \"-\" for the standard input."_s};
    static_cast<void>(numberOf(arguments, u"jobs"_s, 1, mostJobs, 1));
    Session session(arguments, terminal);
    const QList<BatchLine> lines = readBatchLines(textOf(arguments.operands.first()));
    const int jobs = numberOf(arguments, u"jobs"_s, 1, mostJobs, session.settings().downloadMax());
    return Batch(arguments, session, jobs).run(lines);
}

} // namespace

Command batchCommand()
{
    return {
        u"batch"_s,
        u"FILE"_s,
        u"Downloads the packages of a list, several at once; \"-\" reads it from the standard input."_s,
        {{u"jobs"_s, u"So many at once, 1 to 5, instead of the settings' number."_s, u"number"_s},
         {u"latest"_s, u"Of each title the last package listed."_s},
         {u"dry-run"_s, u"Look titles up and say what would be done; download nothing."_s},
         {u"to"_s,
          u"Into this folder, made when it is missing. Else the download folder of the settings where that "
          "is in use, else the current folder."_s,
          u"folder"_s},
         {u"overwrite"_s, u"Replace files that are there."_s},
         serverOption(),
         timeoutOption()},
        run};
}

} // namespace varnhold::cli
