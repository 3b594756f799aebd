#include "app/DesktopWorld.h"
#include "appearance/ToolkitLook.h"
#include "platform/RunTimeError.h"
#include "platform/SampleServiceProcess.h"
#include "platform/SingleInstance.h"
#include "state/SampleHosts.h"

#include <QApplication>
#include <QCommandLineParser>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;
using namespace varnhold;

namespace {

void describe(QCommandLineParser& options)
{
    options.setApplicationDescription(u"Looks up game updates and downloads their packages."_s);
    options.addHelpOption();
    options.addVersionOption();
    options.addOption({u"root"_s, u"The program's folder: settings, database, skins."_s, u"folder"_s});
}

/// Help and version need no display, so they are answered before one is asked for.
bool isQuestion(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        const QByteArrayView word(argv[i]);
        if (word == "--help" || word == "-h" || word == "--version" || word == "-v")
            return true;
    }
    return false;
}

bool hasDisplay()
{
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

/// The program cannot start. Whoever started it from a menu sees no terminal.
void tell(const QString& reason)
{
    std::fprintf(stderr, "varnhold: %s\n", qPrintable(reason));
    const QString platform = QGuiApplication::platformName();
    if (platform != u"offscreen" && platform != u"minimal")
        QtMessageBoxes().show(
            {.text = reason, .title = QCoreApplication::applicationName(), .icon = BoxIcon::Critical});
}

int run(const QString& root)
{
    const QString folder = QCoreApplication::applicationDirPath();
    const Paths paths = findPaths(root, folder, folder + u"/../share/varnhold"_s);
    DesktopWorld desktop;
    SampleServiceProcess sampleService;
    SingleInstance instance(paths.root);
    Program program(paths,
                    desktop.world({[&] { return instance.isFirst(); }, [&] { return instance.askFirst(); }},
                                  [&] { return hostsInUse(paths.hostsIni(), sampleService); }));
    QObject::connect(&instance, &SingleInstance::activationRequested, &program, &Program::comeToFront);
    if (!program.start())
        return 0;
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setApplicationName(u"Varnhold"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(VARNHOLD_VERSION));
    QGuiApplication::setDesktopFileName(u"varnhold"_s);
    if (isQuestion(argc, argv)) {
        const QCoreApplication application(argc, argv);
        QCommandLineParser options;
        describe(options);
        options.process(application);
        return 0;
    }
    if (!hasDisplay()) {
        std::fputs("varnhold: there is no display here. varnhold-cli does the same job in the terminal.\n",
                   stderr);
        return 1;
    }
    // Only X11 lets a window place itself, and this program's windows do.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "xcb;wayland");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QCommandLineParser options;
    describe(options);
    options.process(application);
    setUpToolkitLook(application);
    try {
        return run(options.value(u"root"_s));
    } catch (const RunTimeError& error) {
        tell(error.description());
        return 1;
    }
}
