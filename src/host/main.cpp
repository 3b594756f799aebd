#include "host/ParentWatch.h"
#include "host/SampleService.h"
#include "host/Titles.h"
#include "platform/ReadFile.h"
#include "platform/RunTimeError.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

using namespace varnhold;
using namespace varnhold::host;
using namespace Qt::StringLiterals;

namespace {

constexpr int failed = 1;
constexpr int misuse = 2;
/// Addresses of packages that were kept in one run hold in the next.
constexpr quint16 usualPort = 28930;
constexpr int mostIds = 1'000'000;
constexpr qint64 largestVersionFile = qint64{64} * 1024 * 1024;

struct Usage
{
    QString problem;
};

quint16 portOf(const QString& text)
{
    bool ok = false;
    const quint16 port = text.toUShort(&ok);
    if (!ok)
        throw Usage{u"\"%1\" is not a port number."_s.arg(text)};
    return port;
}

/// Beside the program in a build, else where it is installed; empty when they are nowhere.
QString coverFolder()
{
    const QString program = QCoreApplication::applicationDirPath();
    for (const QString& folder :
         {u"/../share"_s, u"/../share/varnhold-host"_s, u"/../../share/varnhold-host"_s})
        if (QFileInfo(program + folder + u"/covers"_s).isDir())
            return program + folder;
    return {};
}

int idCount(const QString& text)
{
    bool ok = false;
    const int count = text.toInt(&ok);
    if (!ok || count < 0 || count > mostIds)
        throw Usage{u"\"%1\" is no number of ids from 0 to %2."_s.arg(text).arg(mostIds)};
    return count;
}

void printTitles()
{
    for (const SampleTitle& title : knownTitles())
        std::printf("%s %2zu  %s\n", qUtf8Printable(title.id), title.packages.size(),
                    qUtf8Printable(title.name));
}

void configureUpdateHost(Site& site, const QCommandLineParser& options)
{
    if (options.isSet(u"news"_s) && options.isSet(u"version-file"_s))
        throw Usage{u"--news and --version-file exclude each other."_s};
    if (options.isSet(u"news"_s))
        site.setVersionText(options.value(u"news"_s).toUtf8() + "\r\n");
    if (options.isSet(u"version-file"_s))
        site.setVersionText(readFile(options.value(u"version-file"_s), largestVersionFile));
    if (options.isSet(u"ids"_s))
        site.setIdList(madeUpIdList(idCount(options.value(u"ids"_s))));
}

void configure(SampleService& service, const QCommandLineParser& options)
{
    bool ok = false;
    const double rate = options.value(u"rate"_s).toDouble(&ok);
    if (!ok || !(rate >= 0 && rate <= 1e6))
        throw Usage{u"\"%1\" is not a rate in megabytes a second."_s.arg(options.value(u"rate"_s))};
    service.setRate(static_cast<qint64>(rate * 1e6));

    const std::optional<CertificateFault> fault = parseCertificateFault(options.value(u"certificate"_s));
    if (!fault)
        throw Usage{u"\"%1\" is no kind of certificate."_s.arg(options.value(u"certificate"_s))};
    service.setCertificateFault(*fault);

    configureUpdateHost(service.site(), options);

    for (const QString& rule : options.values(u"misbehave"_s)) {
        const qsizetype equals = rule.lastIndexOf(u'=');
        const auto kind = parseMisbehaviour(QStringView(rule).sliced(equals + 1));
        if (equals < 1 || !kind)
            throw Usage{u"\"%1\" is no PATHGLOB=KIND; the kinds are %2."_s.arg(
                rule, misbehaviourWords().join(u", "_s))};
        service.misbehave(rule.first(equals), *kind);
    }
}

void addOptions(QCommandLineParser& options)
{
    options.setApplicationDescription(
        u"Plays the outside hosts of Varnhold on loopback, with made-up titles."_s);
    options.addHelpOption();
    options.addVersionOption();
    options.addOption(
        {u"port"_s, u"Port for http; 0 picks %1 or another free one."_s.arg(usualPort), u"port"_s, u"0"_s});
    options.addOption({u"https-port"_s, u"Port for https; 0 picks a free one."_s, u"port"_s, u"0"_s});
    options.addOption(
        {u"rate"_s, u"Pace of packages in megabytes a second; 0 for none."_s, u"rate"_s, u"30"_s});
    options.addOption({u"ca-file"_s, u"Where to write the authority's certificate."_s, u"file"_s});
    options.addOption(
        {u"titles"_s, u"Lists the titles that it knows with their numbers of packages, and ends."_s});
    options.addOption(
        {u"news"_s, u"What the version file says; without it, this program's own version."_s, u"version"_s});
    options.addOption({u"version-file"_s, u"The version file's bytes."_s, u"file"_s});
    options.addOption({u"ids"_s, u"An id list of so many made-up titles."_s, u"number"_s});
    options.addOption({u"certificate"_s,
                       u"The certificate shown over https: good, wrong-host, expired, self-signed."_s,
                       u"kind"_s, u"good"_s});
    options.addOption(
        {u"misbehave"_s,
         u"Lets answers to matching paths go wrong; may be repeated. Kinds, some with \":amount\": "_s +
             misbehaviourWords().join(u", "_s) + u"."_s,
         u"pathglob=kind"_s});
    options.addOption({u"parent"_s, u"Ends when this process, which must be the parent, ends."_s, u"pid"_s});
    options.addOption({u"end-with-stdin"_s, u"Ends when standard input ends."_s});
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"varnhold-host"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(VARNHOLD_VERSION));
    QCommandLineParser options;
    addOptions(options);
    options.process(application);

    if (options.isSet(u"titles"_s)) {
        printTitles();
        return 0;
    }
    try {
        quitOnSignals();
        if (options.isSet(u"parent"_s) && !endWithParent(options.value(u"parent"_s).toLongLong()))
            return failed;
        if (options.isSet(u"end-with-stdin"_s))
            quitWithStandardInput();
        SampleService service;
        configure(service, options);
        service.site().setCoverFolder(coverFolder());
        service.preferPort(usualPort);
        service.start(portOf(options.value(u"port"_s)), portOf(options.value(u"https-port"_s)),
                      options.value(u"ca-file"_s));
        const QJsonObject line{{u"http"_s, service.httpPort()},
                               {u"https"_s, service.httpsPort()},
                               {u"other"_s, service.otherPort()},
                               {u"ca"_s, service.caFile()}};
        std::printf("%s\n", QJsonDocument(line).toJson(QJsonDocument::Compact).constData());
        std::fflush(stdout);
        return QCoreApplication::exec();
    } catch (const Usage& usage) {
        std::fprintf(stderr, "varnhold-host: %s\n", qUtf8Printable(usage.problem));
        return misuse;
    } catch (const RunTimeError& error) {
        std::fprintf(stderr, "varnhold-host: %s\n", qUtf8Printable(error.description()));
        return failed;
    }
}
