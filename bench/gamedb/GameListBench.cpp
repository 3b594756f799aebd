// The game list of the whole program: the processor time of loading 100,000 titles with icons, from a closed
// file to a painted window, against the toolkit's table model and view; then the time from a click on a row
// to its notes and cover on the window. game_list_bench [PAIRS [loads|choices]].

#include "GameFile.h"

#include "app/DesktopWorld.h"
#include "app/main/frmMain.h"
#include "appearance/ToolkitLook.h"
#include "controls/MorphListBox/MorphListBox.h"
#include "support/PairedRuns.h"

#include <QApplication>
#include <QFile>
#include <QHeaderView>
#include <QMouseEvent>
#include <QSqlDatabase>
#include <QSqlTableModel>
#include <QTableView>
#include <QTemporaryDir>

#include <filesystem>

namespace {

using namespace Qt::StringLiterals;
using namespace varnhold;
using namespace varnhold::bench;

constexpr int titles = 100'000;
constexpr int entries = 300;

/// What is loaded, and in which order.
struct Load
{
    const char* name;
    int column;    ///< of the order: 0 id, 1 name
    int noteEvery; ///< rows with rich notes; 0: none
    double most;   ///< ours to theirs
};

/// A program folder with the delivered skins, ordered by that column.
QString programFolder(const QTemporaryDir& folder, const char* self, int column = 0)
{
    const auto share = std::filesystem::path(self).parent_path() / "../share/skin";
    std::filesystem::copy(share, folder.path().toStdString() + "/skin",
                          std::filesystem::copy_options::recursive);
    QFile settings(folder.filePath(u"Settings.ini"_s));
    settings.open(QIODevice::WriteOnly);
    settings.write("[Settings]\r\nDB Table=1\r\nAsc Desc=1\r\nShow Icons=1\r\n"
                   "Click Sounds=0\r\nLeftBar Top=1800\r\nMainbar Top=1200\r\nSearch Table=" +
                   QByteArray::number(column + 1) + "\r\n");
    return folder.path();
}

double loadOurs(frmMain& window)
{
    window.games().Clear(); // what went before is nobody's load
    window.titles().clear();
    const double seconds = cpuSecondsOf([&] {
        Q_EMIT window.refreshRequested();
        window.repaint();
    });
    if (window.games().ListCount() != titles) {
        std::fprintf(stderr, "%d titles in the list\n", window.games().ListCount());
        std::exit(1);
    }
    return seconds;
}

double loadTheirs(QTableView& view, const QString& path, int column)
{
    double seconds = 0;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"bench"_s);
        database.setDatabaseName(path);
        QSqlTableModel model(nullptr, database);
        seconds = cpuSecondsOf([&] {
            database.open();
            model.setTable(u"PS3Games"_s);
            model.setSort(column, Qt::AscendingOrder);
            model.select();
            while (model.canFetchMore())
                model.fetchMore();
            view.setModel(&model);
            for (int other = 1; other < model.columnCount(); ++other)
                view.hideColumn(other);
            view.repaint();
        });
        if (model.rowCount() != titles) {
            std::fprintf(stderr, "%d rows in the table\n", model.rowCount());
            std::exit(1);
        }
        view.setModel(nullptr);
    }
    QSqlDatabase::removeDatabase(u"bench"_s);
    return seconds;
}

bool compareLoads(const char* self, int pairs, const Load& load)
{
    const QTemporaryDir folder;
    const QString root = programFolder(folder, self, load.column);
    const QString path = root + u"/GameDB.mdb"_s;
    makeTitles(path, titles, load.noteEvery);
    const Paths paths{root};
    DesktopWorld world;
    Program program(paths, world.lonelyWorld());
    if (!program.start())
        return false;
    QTableView view;
    view.resize(program.mainWindow().size());
    view.show();
    QCoreApplication::processEvents();
    return printPaired(load.name,
                       comparePaired(
                           pairs, [&] { return loadOurs(program.mainWindow()); },
                           [&] { return loadTheirs(view, path, load.column); }),
                       "ms", 1000, load.most);
}

bool compareAll(const char* self, int pairs)
{
    constexpr Load loads[] = {
        {"100,000 titles by name, every fourth with notes", 1, 4, 1.0 / 3},
        {"100,000 titles by name", 1, 0, 0.4},
        {"100,000 titles by id", 0, 0, 0.4},
    };
    bool kept = true;
    for (const Load& load : loads)
        kept = compareLoads(self, pairs, load) && kept;
    return kept;
}

void press(QWidget& widget, QEvent::Type type, const QPoint& at)
{
    QMouseEvent event(type, at, widget.mapToGlobal(at), Qt::LeftButton,
                      type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

bool timeSelections(const char* self)
{
    const QTemporaryDir folder;
    const QString root = programFolder(folder, self);
    makeEntries(root + u"/GameDB.mdb"_s, entries);
    const Paths paths{root};
    DesktopWorld world;
    Program program(paths, world.lonelyWorld());
    if (!program.start())
        return false;
    frmMain& window = program.mainWindow();
    MorphListBox& games = window.games();
    QCoreApplication::processEvents();
    std::vector<double> times;
    for (int round = 0; round < 4; ++round) {
        for (int i = 0; i < entries; ++i) {
            const int row = i * 7 % entries;
            games.DisplayFrom(row);
            const QPoint at = games.rowRect(row).center();
            QCoreApplication::processEvents();
            times.push_back(secondsOf([&] {
                press(games, QEvent::MouseButtonPress, at);
                press(games, QEvent::MouseButtonRelease, at);
                window.repaint();
            }));
        }
    }
    std::sort(times.begin(), times.end());
    const double median = medianOf(times) * 1000;
    const double late = times.at(times.size() * 99 / 100) * 1000;
    constexpr double limit = 20; // ms
    std::printf("click to notes and cover painted: median %.2f ms, 99th percentile %.2f ms, worst %.2f ms "
                "(below %.0f: %s)\n",
                median, late, times.back() * 1000, limit, late < limit ? "kept" : "MISSED");
    return late < limit;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"Varnhold"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(VARNHOLD_VERSION));
    setUpToolkitLook(application);
    const int pairs = argc > 1 ? std::atoi(argv[1]) : 15;
    const std::string_view only = argc > 2 ? argv[2] : "";
    const bool loads = only == "choices" || compareAll(argv[0], pairs);
    const bool choices = only == "loads" || timeSelections(argv[0]);
    return loads && choices ? 0 : 1;
}
