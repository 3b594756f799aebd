#include "cli/Session.h"

#include "platform/RunTimeError.h"
#include "state/SampleHosts.h"
#include "state/SettingsLoad.h"

#include <QCoreApplication>

namespace varnhold::cli {

using namespace Qt::StringLiterals;

namespace {

/// There are no windows here that a load could set up.
class NoWindows : public SettingsLoadHost
{
public:
    void showStatus(const QString&) override {}
    void showMessage(const QString&) override {}
    void startCertificateWatch() override {}
    void setBarMainTop(double) override {}
    void setBarLeftTop(double) override {}
    void applyOpacity(OpacityOf, int) override {}
};

} // namespace

Paths pathsFor(const Arguments& arguments)
{
    const QString folder = QCoreApplication::applicationDirPath();
    return findPaths(arguments.root, folder, folder + u"/../share/varnhold"_s);
}

Session::Session(const Arguments& arguments, Terminal& terminal)
    : m_terminal(terminal),
      m_boxes(terminal),
      m_paths(pathsFor(arguments)),
      m_settingsFile(m_paths, m_state),
      m_settings(m_settingsFile),
      m_hosts(hostsInUse(m_paths.hostsIni(), m_service))
{
    load(m_paths);
    if (arguments.server)
        m_settings.unwrittenValues().server = *arguments.server;
}

void Session::load(const Paths& paths)
{
    NoWindows windows;
    const QString listUrl = u"http://"_s + m_hosts.update.authority + u"/Varnhold/ps3gameids.txt"_s;
    try {
        loadSettings(m_settings, m_settingsFile, m_state, paths, listUrl, windows);
    } catch (const RunTimeError& error) {
        // As in the program: what was read before stays in force.
        m_terminal.complain(
            u"Settings.ini was read only up to a value that does not fit: %1."_s.arg(error.description()));
    }
}

} // namespace varnhold::cli
