// Lookup: cutting a document into rows against an XML parser that copies the same bytes, and a whole lookup
// over http on loopback against the network manager's bare fetch of the same address.

#include "host/SampleService.h"
#include "lookup/Lookup.h"
#include "lookup/UnseenLookupView.h"
#include "lookup/UpdateList.h"
#include "platform/MessageBoxes.h"
#include "platform/MessagePump.h"
#include "platform/NetworkBrowser.h"
#include "platform/SoundPlayer.h"
#include "platform/XmlTreeText.h"
#include "state/ApplicationState.h"
#include "state/Hosts.h"
#include "state/Paths.h"
#include "state/Settings.h"
#include "state/SettingsFile.h"
#include "state/Sounds.h"
#include "support/PairedRuns.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTemporaryDir>
#include <QThread>

#include <pugixml.hpp>

#include <array>
#include <cstdlib>

namespace varnhold::bench {

using namespace Qt::StringLiterals;

namespace {

const QString gameId = u"BLUS30443"_s;

QByteArray documentOf(int packages)
{
    QByteArray document =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<titlepatch status=\"alive\" "
        "titleid=\"BLUS30443\">\n<tag name=\"BLUS30443_T1\" popup=\"true\" signoff=\"true\">\n";
    for (int i = 0; i < packages; ++i) {
        const QByteArray number = QByteArray::number(i).rightJustified(5, '0');
        document += "<package version=\"01." + number + "\" size=\"" +
                    QByteArray::number(20480 + i * 9973LL) +
                    "\" sha1sum=\"0123456789abcdef0123456789abcdef012" + number +
                    "\" url=\"http://127.0.0.1:8080/tppkg/np/BLUS30443/BLUS30443_T1/00112233445566" + number +
                    "/UP0001-BLUS30443_00-PATCH0000000" + number +
                    "-A0101-V0100-PE.pkg\" ps3_system_ver=\"03.5500\">\n</package>\n";
    }
    return document + "<paramsfo><TITLE>Made Up: Update</TITLE></paramsfo></tag></titlepatch>\n";
}

class NoBoxes : public MessageBoxes
{
public:
    BoxAnswer show(const MessageBox& box) override
    {
        std::fprintf(stderr, "unexpected box: %s\n", qPrintable(box.text));
        std::exit(1);
    }
};

class NoSound : public SoundPlayer
{
public:
    int play(const QString&) override { return 0; }
};

class NoAlert : public SecurityAlert
{
public:
    bool accept(const QString&, const QStringList&) override { return false; }
    void cancel() override {}
};

/// What a lookup stands on. Downloads go to an empty folder of its own.
struct World
{
    World() { settings.unwrittenValues().saveDir.tag = folder.path(); }

    QTemporaryDir folder;
    ApplicationState state;
    Paths paths{folder.path()};
    SettingsFile file{paths, state};
    Settings settings{file};
    UpdateList list;
    UnseenLookupView view{gameId};
    NoBoxes boxes;
    NoSound player;
    Sounds sounds{settings, player, state};
};

struct PugiRow
{
    std::string version, system, size, sum, url;
};

/// Replaces the rows by those of the document.
void pugiRows(const QByteArray& bytes, std::vector<PugiRow>& rows)
{
    rows.clear();
    pugi::xml_document document;
    document.load_buffer(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    for (const pugi::xml_node package : document.child("titlepatch").child("tag").children("package"))
        rows.push_back({package.attribute("version").value(), package.attribute("ps3_system_ver").value(),
                        package.attribute("size").value(), package.attribute("sha1sum").value(),
                        package.attribute("url").value()});
}

void require(bool condition, const char* what)
{
    if (!condition) {
        std::fprintf(stderr, "%s\n", what);
        std::exit(1);
    }
}

/// Both sides start with the rows of the run before, which they replace, and with an input that stays whole,
/// as in the program: XMLText starts as the page that the browser also keeps, so that rewriting it takes a
/// copy, and the parser copies the bytes before it writes into them. Ours ends with titles and views told,
/// theirs with the rows; the second comparison adds the way from bytes to the page to ours alone.
void benchCut(int packages, int pairs, double atMost)
{
    const QByteArray bytes = documentOf(packages);
    const QString page = xmlTreeText(bytes).value();
    World world;
    world.settings.unwrittenValues().checks.at(static_cast<std::size_t>(Check::UseDLD)) = true;
    world.settings.unwrittenValues().saveDir.tag = u"/nowhere"_s; // ends the marking at the first row
    UpdateDocument document(world.state, world.settings, world.list, world.view, world.boxes);
    std::vector<PugiRow> rows;
    const auto cutPage = [&](const QString& text) {
        world.list.clear();
        world.state.XMLText = text;
        document.Fill_Updates(0);
        require(world.list.count() == packages, "rows are missing");
    };
    const auto cut = [&] { cutPage(page); };
    std::vector<std::array<QString, 5>> owned;
    const auto cutAndOwn = [&] {
        cutPage(page);
        owned.clear();
        for (int row = 1; row <= packages; ++row)
            owned.push_back({world.list.text(row), world.list.subItem(row, UpdateList::Version),
                             world.list.subItem(row, UpdateList::Size),
                             world.list.subItem(row, UpdateList::Binary),
                             world.list.subItem(row, UpdateList::Url)});
    };
    const auto treeAndCut = [&] { cutPage(xmlTreeText(bytes).value()); };
    const auto parse = [&] {
        pugiRows(bytes, rows);
        require(rows.size() == static_cast<std::size_t>(packages), "the parser's rows are missing");
    };
    const auto compare = [&](const char* what, const std::function<void()>& ours, double limit) {
        const std::string name = std::to_string(packages) + " packages, " + what;
        const auto cpu = [](const auto& work) { return [&] { return cpuSecondsOf(work); }; };
        const auto wall = [](const auto& work) { return [&] { return secondsOf(work); }; };
        printPaired(name, comparePaired(pairs, cpu(ours), cpu(parse)), "CPU ms", 1e3, limit);
        printPaired(name, comparePaired(pairs, wall(ours), wall(parse)), "wall ms", 1e3, limit);
    };
    compare("text to rows that look into it / parser with copies", cut, atMost);
    compare("text to rows that own it / the same", cutAndOwn, 0);
    compare("bytes to tree text to rows / the same", treeAndCut, 0);
}

/// Documents that make the reader compare, of about so many bytes: as much as is let through, and more.
void benchHeavy(qsizetype size)
{
    const auto many = [](const char* before, const char* behind, qsizetype bytes) {
        QByteArray text;
        for (int i = 0; text.size() < bytes; ++i)
            text += before + QByteArray::number(i) + behind;
        return text;
    };
    const auto repeated = [size](const QByteArray& tag) {
        return "<a>" + tag.repeated(size / tag.size()) + "</a>";
    };
    const auto defaults = [&](qsizetype bytes) {
        return "<!DOCTYPE a [<!ATTLIST b" + many(" c", " ID #IMPLIED", bytes) + ">]>" + repeated("<b/>");
    };
    constexpr qsizetype few = 1500; // bytes that hold no more than is let through
    const struct
    {
        const char* name;
        QByteArray document;
    } heavy[] = {
        {"attributes", repeated("<b" + many(" c", "=''", few) + "/>")},
        {"attributes, too many", "<a" + many(" c", "=''", size) + "/>"},
        {"name spaces", repeated("<b" + many(" xmlns:c", "=''", few) + "/>")},
        {"name spaces, too many", "<a" + many(" xmlns:c", "=''", size) + "/>"},
        {"defaults", defaults(few)},
        {"defaults, too many", defaults(size)},
    };
    for (const auto& one : heavy) {
        bool isShown = false;
        const double seconds = secondsOf([&] { isShown = xmlTreeText(one.document).has_value(); });
        std::printf("%4.1f MB of %-24s %8.1f ms, %s\n", double(one.document.size()) / 1e6, one.name,
                    seconds * 1e3, isShown ? "shown" : "refused");
    }
}

/// The sample service in a thread of its own, with one document.
class Service
{
public:
    explicit Service(const QByteArray& document) : m_service(new host::SampleService)
    {
        m_service->moveToThread(&m_thread);
        m_thread.start();
        run([&] {
            m_service->start();
            m_service->site().addPage(u"/tppkg/np/'BLUS30443/BLUS30443-ver.xml"_s, "text/xml", document);
            authority = m_service->httpAuthority();
        });
    }
    ~Service()
    {
        run([this] { delete m_service; });
        m_thread.quit();
        m_thread.wait();
    }
    Q_DISABLE_COPY_MOVE(Service)

    QString authority;

private:
    void run(const std::function<void()>& action)
    {
        QMetaObject::invokeMethod(m_service, action, Qt::BlockingQueuedConnection);
    }

    QThread m_thread;
    host::SampleService* m_service;
};

void benchLookup(int packages, int pairs)
{
    const Service service(documentOf(packages));
    World world;
    world.settings.unwrittenValues().server = 2;
    Hosts hosts;
    hosts.servers.at(1).authority = service.authority;
    NoAlert alert;
    NetworkBrowser browser(alert, {});
    EventLoopPump pump;
    Lookup lookup({world.state, world.settings, hosts, world.list, world.view, browser, world.sounds,
                   world.boxes, pump});
    QNetworkAccessManager manager;
    const QUrl url(u"http://"_s + service.authority + u"/tppkg/np/'BLUS30443/BLUS30443-ver.xml"_s);

    const auto ours = [&] {
        const double seconds = secondsOf([&] { lookup.btnFetch_Click(); });
        require(world.list.count() == packages, "the lookup's rows are missing");
        return seconds;
    };
    const auto bare = [&] {
        return secondsOf([&] {
            QNetworkReply* reply = manager.get(QNetworkRequest(url));
            while (!reply->isFinished())
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            require(!reply->readAll().isEmpty(), "the bare fetch got nothing");
            delete reply;
        });
    };
    printPaired(std::to_string(packages) + " packages, Enter to filled list / bare fetch",
                comparePaired(pairs, ours, bare), "ms", 1e3, 1.5);
}

} // namespace

} // namespace varnhold::bench

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    using namespace varnhold::bench;
    benchCut(20000, 31, 0.67);
    for (const int packages : {2000, 8000, 32000})
        benchCut(packages, 15, 0);
    for (const qsizetype megabytes : {1, 8})
        benchHeavy(megabytes * 1'000'000);
    for (const int packages : {3, 50})
        benchLookup(packages, 201);
    return 0;
}
