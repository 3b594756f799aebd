// The program's start against a bare window of the same toolkit, in pairs of processes: from the process's
// start to the first paint of the splash, and to the idle main window. start_bench [PAIRS].

#include "app/DesktopWorld.h"
#include "appearance/ToolkitLook.h"
#include "support/ChildRun.h"
#include "support/PairedRuns.h"

#include <QApplication>
#include <QTemporaryDir>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace {

using namespace Qt::StringLiterals;
using namespace varnhold;
using namespace varnhold::bench;

/// Ends the process, as short as it gets, when the control that is painted last in its window is reached.
class EndAtPaint : public QObject
{
public:
    explicit EndAtPaint(const QString& control) : m_control(control) {}

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && watched->objectName() == m_control)
            std::_Exit(0);
        return false;
    }

private:
    QString m_control;
};

int runOurs(QApplication& application, const QString& until, const QString& root)
{
    const Paths paths{root};
    setUpToolkitLook(application);
    DesktopWorld desktop;
    EndAtPaint end(until);
    application.installEventFilter(&end);
    Program program(paths, desktop.lonelyWorld());
    return program.start() ? QApplication::exec() : 1;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setApplicationName(u"Varnhold"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(VARNHOLD_VERSION));
    const std::string mode = argc > 1 ? argv[1] : "";
    if (mode.starts_with("--")) {
        QApplication application(argc, argv);
        return runOurs(application, mode == "--splash" ? u"lblLoading"_s : u"lblCnt"_s,
                       QString::fromLocal8Bit(argv[2]));
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const int pairs = mode.empty() ? 21 : std::atoi(mode.c_str());
    const QTemporaryDir root;
    // The skins and the game database as delivered.
    std::filesystem::copy(std::filesystem::path(argv[0]).parent_path() / "../share",
                          root.path().toStdString(), std::filesystem::copy_options::recursive);
    const std::string bare = (std::filesystem::path(argv[0]).parent_path() / "bare_window").string();
    const auto timeOfBare = [&] { return runChildren({{bare}}).seconds; };
    const auto timeOf = [&](const char* what) {
        return [self = std::string(argv[0]), what, folder = root.path().toStdString()] {
            return runChildren({{self, what, folder}}).seconds;
        };
    };
    bool kept = printPaired("splash painted, against a bare window",
                            comparePaired(pairs, timeOf("--splash"), timeOfBare), "ms", 1000, 1.5);
    kept = printPaired("main window painted, against a bare window",
                       comparePaired(pairs, timeOf("--main"), timeOfBare), "ms", 1000, 4) &&
           kept;
    return kept ? 0 : 1;
}
