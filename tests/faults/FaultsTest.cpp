// Lets one call at a time go wrong on each path that writes. Started with "--use PATH ROOT ARGUMENT" the
// program is the process that uses a path; else it is the test that starts these.

#include "faults/WritingPaths.h"
#include "support/PrintText.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QProcess>

#include <algorithm>
#include <set>

namespace varnhold::test {
namespace {

using namespace Qt::StringLiterals;

constexpr int refused = 1; // the terminal's exit codes up to 4 are refusals, too
constexpr int lastRefused = 4;

FaultOutcome use(const WritingPath& path, FaultPlace& place, const QString& fault, const QString& report = {})
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LD_PRELOAD"_s, QStringLiteral(FAULT_INJECTOR));
    environment.insert(u"ASAN_OPTIONS"_s, u"verify_asan_link_order=0:detect_leaks=0:exitcode=99"_s);
    environment.insert(u"VARNHOLD_FAULT_UNDER"_s, place.root.path(u"work"_s));
    environment.insert(u"VARNHOLD_FAULT"_s, fault);
    environment.insert(u"VARNHOLD_FAULT_REPORT"_s, report);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(),
                  {u"--use"_s, QString::fromLatin1(path.name), place.root.path(u"work"_s),
                   path.argument ? path.argument(place) : QString()});
    constexpr int patience = 30'000;
    EXPECT_TRUE(process.waitForFinished(patience)) << "does not end";
    if (process.exitStatus() != QProcess::NormalExit) {
        EXPECT_TRUE(fault.endsWith(u"kill")) << "crashes";
        return FaultOutcome::Killed;
    }
    EXPECT_TRUE(process.exitCode() >= 0 && process.exitCode() <= lastRefused) << process.exitCode();
    return process.exitCode() == 0 ? FaultOutcome::Acknowledged : FaultOutcome::Refused;
}

void prepare(const WritingPath& path, FaultPlace& place)
{
    QDir(place.root.path(u"work"_s)).removeRecursively();
    place.root.makeFolder(u"work"_s);
    path.prepare(place);
}

/// How many calls of each kind a run without a fault makes.
QMap<QString, int> callsOf(const WritingPath& path, FaultPlace& place)
{
    const QString report = place.root.path(u"report"_s);
    prepare(path, place);
    EXPECT_EQ(use(path, place, {}, report), FaultOutcome::Acknowledged);
    path.check(place, FaultOutcome::Acknowledged);
    QMap<QString, int> calls;
    for (const QByteArray& line : place.root.read(u"report"_s).split('\n')) {
        const QList<QByteArray> words = line.split(' ');
        if (words.size() == 2 && words.at(1).toInt() > 0)
            calls.insert(QString::fromLatin1(words.at(0)), words.at(1).toInt());
    }
    return calls;
}

std::set<int> spread(int last, int most)
{
    std::set<int> numbers;
    for (int i = 0; i < std::min(last, most); ++i)
        numbers.insert(last <= most ? i + 1 : 1 + i * (last - 1) / (most - 1));
    return numbers;
}

class Faults : public testing::TestWithParam<std::size_t>
{
};

TEST_P(Faults, LoseNothing)
{
    const WritingPath& path = writingPaths().at(GetParam());
    FaultPlace place;
    const QMap<QString, int> calls = callsOf(path, place);
    ASSERT_FALSE(calls.isEmpty()) << "the faults reach nothing";
    const QStringList moving = {u"write"_s, u"send"_s, u"recv"_s};
    int runs = 0;
    for (auto kind = calls.begin(); kind != calls.end(); ++kind) {
        for (const int number : spread(kind.value(), path.most)) {
            for (const QString& way : {u"once"_s, u"always"_s, u"short"_s, u"kill"_s}) {
                if (way == u"short" && !moving.contains(kind.key()))
                    continue;
                const QString fault = u"%1:%2:%3"_s.arg(kind.key()).arg(number).arg(way);
                SCOPED_TRACE(qPrintable(fault));
                ++runs;
                prepare(path, place);
                const FaultOutcome outcome = use(path, place, fault);
                if (kind.key() == u"sync" && !path.mayPassOverFlushes) {
                    EXPECT_NE(outcome, FaultOutcome::Acknowledged) << "what may not be on the disk";
                }
                path.check(place, outcome);
                EXPECT_EQ(use(path, place, {}), FaultOutcome::Acknowledged) << "the next use";
                path.check(place, FaultOutcome::Acknowledged);
                if (HasFailure())
                    return;
            }
        }
    }
    RecordProperty("runs", runs);
}

INSTANTIATE_TEST_SUITE_P(Paths, Faults, testing::Range(std::size_t{0}, writingPaths().size()),
                         [](const testing::TestParamInfo<std::size_t>& path) {
                             return std::string(writingPaths().at(path.param).name);
                         });

int useOnce(const QStringList& arguments)
{
    for (const WritingPath& path : writingPaths()) {
        if (arguments.at(2) == QLatin1StringView(path.name))
            return path.use(arguments.at(3), arguments.at(4)) ? 0 : refused;
    }
    return lastRefused + 1;
}

} // namespace
} // namespace varnhold::test

int main(int argc, char** argv)
{
    using namespace Qt::StringLiterals;
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 5 && arguments.at(1) == QLatin1StringView("--use"))
        return varnhold::test::useOnce(arguments);
    testing::InitGoogleTest(&argc, argv);
    // Every use flushes, and no disk is needed for what is tested here.
    if (QFileInfo(u"/dev/shm"_s).isWritable())
        qputenv("TMPDIR", "/dev/shm");
    return RUN_ALL_TESTS();
}
