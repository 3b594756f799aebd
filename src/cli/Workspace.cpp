#include "cli/Workspace.h"

#include "cli/Arguments.h"
#include "platform/Files.h"
#include "platform/RunTimeError.h"
#include "state/Hosts.h"
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
    void loadCoverServers() override {} // whoever asks them reads them
};

/// The address of the id list where the settings give none. A hosts.ini that cannot be read gives none
/// either; who asks a host is told of that.
QString defaultListUrl(const Paths& paths)
{
    try {
        const Hosts hosts = readHosts(paths.hostsIni());
        const QString authority = hosts.sample ? u"sample"_s : hosts.update.authority;
        return u"http://%1/Varnhold/ps3gameids.txt"_s.arg(authority);
    } catch (const RunTimeError&) {
        return {};
    }
}

} // namespace

Paths pathsFor(const Arguments& arguments)
{
    // The window makes it; here it is more likely a slip of the pen.
    if (!arguments.root.isEmpty() && !FolderExists(arguments.root))
        throw RunTimeError(errors::pathNotFound, u"There is no folder \"%1\"."_s.arg(arguments.root));
    const QString folder = QCoreApplication::applicationDirPath();
    return findPaths(arguments.root, folder, folder + u"/../share/varnhold"_s);
}

Workspace::Workspace(const Arguments& arguments, Terminal& terminal)
    : m_terminal(terminal),
      m_boxes(terminal),
      m_paths(pathsFor(arguments)),
      m_settingsFile(m_paths, m_state),
      m_settings(m_settingsFile)
{
    load();
}

void Workspace::load()
{
    NoWindows windows;
    try {
        loadSettings(m_settings, m_settingsFile, m_state, m_paths, defaultListUrl(m_paths), windows);
    } catch (const RunTimeError& error) {
        // As in the program: what was read before stays in force.
        m_terminal.complain(
            u"Settings.ini was read only up to a value that does not fit: %1."_s.arg(error.description()));
    }
}

} // namespace varnhold::cli
