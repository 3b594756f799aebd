#include "host/Site.h"

#include "host/Cover.h"
#include "host/UpdateXml.h"
#include "platform/ReadFile.h"

#include <QFutureWatcher>
#include <QPointer>
#include <QPromise>
#include <QStringEncoder>
#include <QThreadPool>
#include <QUrlQuery>

#include <algorithm>
#include <array>
#include <limits>
#include <memory>

namespace varnhold::host {

using namespace Qt::StringLiterals;

namespace {

using Sums = std::vector<PackageSums>;

constexpr int mostImages = 60; ///< on one page

/// Stands for the document where a package's index may stand.
constexpr std::size_t document = std::numeric_limits<std::size_t>::max();

/// Some of them end in an apostrophe, which comes raw and belongs to the path.
constexpr std::array<QStringView, 6> documentBases = {
    u"/tpl/np/", u"/tppkg/np/'", u"/tppkg/prod-qa/'", u"/tpl/sp-int/'", u"/tppkg/sp-int/'", u"/tpl/prod-qa/",
};

Sums sumsOf(const SampleTitle& title)
{
    Sums sums;
    sums.reserve(title.packages.size());
    for (const SamplePackage& package : title.packages)
        sums.push_back(packageSums(packageSeed(packagePath(title, package)), package.size));
    return sums;
}

/// Sums of a big package take a while, and the other connections must not wait for them.
QFuture<Sums> startSums(const SampleTitle& title)
{
    const auto promise = std::make_shared<QPromise<Sums>>();
    promise->start();
    QThreadPool::globalInstance()->start([promise, title] {
        promise->addResult(sumsOf(title));
        promise->finish();
    });
    return promise->future();
}

Reply movedTo(const QByteArray& location)
{
    Reply reply = statusReply(302);
    reply.location = location;
    return reply;
}

} // namespace

Site::Site(QObject* parent) : QObject(parent), m_titles(knownTitles()), m_versionText(VARNHOLD_VERSION "\r\n")
{
    for (std::size_t i = 0; i < m_titles.size(); ++i)
        addPaths(i);
}

void Site::addTitle(const SampleTitle& title)
{
    m_sums.remove(title.id);
    const auto old = std::ranges::find(m_titles, title.id, &SampleTitle::id);
    const auto index = static_cast<std::size_t>(old - m_titles.begin());
    if (old == m_titles.end()) {
        m_titles.push_back(title);
    } else {
        *old = title;
        m_paths.removeIf([index](const auto& found) { return found.value().title == index; });
    }
    addPaths(index);
}

/// A title without packages has no document either.
void Site::addPaths(std::size_t title)
{
    const SampleTitle& added = m_titles[title];
    if (added.packages.empty())
        return;
    for (const QStringView base : documentBases)
        m_paths.insert(base.toString() + added.id + u'/' + added.id + u"-ver.xml"_s, {title, document});
    for (std::size_t i = 0; i < added.packages.size(); ++i)
        if (const QString path = packagePath(added, added.packages[i]); !m_paths.contains(path))
            m_paths.insert(path, {title, i});
}

void Site::addPage(const QString& path, const QByteArray& contentType, const QByteArray& bytes)
{
    m_pages.insert(path, bytesReply(contentType, bytes));
}

void Site::answer(const QString& path, const QByteArray& query, const QByteArray& origin,
                  const QObject* asker, const std::function<void(const Reply&)>& done)
{
    const auto found = m_paths.constFind(path);
    if (found == m_paths.cend() || m_pages.contains(path)) {
        done(page(path, query, origin));
        return;
    }
    const SampleTitle title = m_titles[found->title];
    const std::size_t package = found->package;
    const auto reply = [title, package, origin](const Sums& sums) {
        if (package == document)
            return bytesReply("text/xml", updateXml(title, sums, origin));
        Reply packageReply;
        packageReply.contentType = "application/octet-stream";
        packageReply.paced = true;
        const SamplePackage& asked = title.packages.at(package);
        packageReply.body = packageBody(packageSeed(packagePath(title, asked)), asked.size, sums.at(package));
        return packageReply;
    };
    if (!m_sums.contains(title.id))
        m_sums.insert(title.id, startSums(title));
    const QFuture<Sums> sums = m_sums.value(title.id);
    if (sums.isFinished()) {
        done(reply(sums.result()));
        return;
    }
    auto* const watcher = new QFutureWatcher<Sums>(this);
    connect(watcher, &QFutureWatcher<Sums>::finished, this,
            [watcher, reply, done, asker = QPointer<const QObject>(asker)] {
                watcher->deleteLater();
                if (asker)
                    done(reply(watcher->result()));
            });
    watcher->setFuture(sums);
}

Reply Site::page(const QString& path, const QByteArray& query, const QByteArray& origin) const
{
    const auto own = m_pages.constFind(path);
    if (own != m_pages.cend())
        return *own;
    if (path.startsWith(u"/moved/"))
        return movedTo(origin + path.sliced(QStringView(u"/moved").size()).toUtf8() +
                       (query.isEmpty() ? query : '?' + query));
    if (path == u"/Varnhold/txt/version.txt")
        return bytesReply("text/plain", m_versionText);
    if (path == u"/Varnhold/ps3gameids.txt")
        return bytesReply("text/plain", m_idList.value_or(idList()));
    if (path == u"/images")
        return bytesReply("text/html; charset=utf-8", imagesPage(query));
    if (path == u"/")
        return bytesReply(
            "text/html; charset=utf-8",
            "<html><head><title>Sample service</title></head><body><p>This page stands in for an "
            "outside site.</p></body></html>\n");
    // Covers lie in any folder, under the name of a title that there is.
    const QString name = path.sliced(path.lastIndexOf(u'/') + 1);
    for (const SampleTitle& title : m_titles)
        if (hasCover(title.id) && name.compare(title.id + u".jpg"_s, Qt::CaseInsensitive) == 0)
            return bytesReply("image/jpeg", cover(title.id, path.startsWith(u"/scans/")));
    return statusReply(404);
}

QByteArray Site::cover(const QString& id, bool scan) const
{
    constexpr qint64 largest = 8 * 1024 * 1024;
    const QString folder = scan ? u"/scans/"_s : u"/covers/"_s;
    const FileBytes drawn =
        m_coverFolder.isEmpty() ? FileBytes() : tryReadFile(m_coverFolder + folder + id + u".jpg"_s, largest);
    return drawn.isRead ? drawn.bytes : coverJpeg(id);
}

/// The covers whose title or id holds what the query's "q" asks for.
QByteArray Site::imagesPage(const QByteArray& query) const
{
    QUrlQuery asked(QString::fromUtf8(QByteArray(query).replace('+', "%20")));
    QString text = asked.queryItemValue(u"q"_s, QUrl::FullyDecoded).simplified();
    // The program asks for a title and the name of its console.
    if (text.endsWith(u" PS3"_s))
        text.chop(4);
    QString found;
    int count = 0;
    for (const SampleTitle& title : m_titles) {
        if (text.isEmpty() || count == mostImages || !hasCover(title.id) ||
            !(title.name.contains(text, Qt::CaseInsensitive) || title.id.contains(text, Qt::CaseInsensitive)))
            continue;
        ++count;
        found += u"<figure><a href=\"/scans/%1.jpg\"><img src=\"/covers/%1.jpg\" alt=\"\"></a>"
                 "<figcaption>%1<br>%2</figcaption></figure>\n"_s.arg(title.id, title.name.toHtmlEscaped());
    }
    const QString shown = text.toHtmlEscaped();
    return u"<!DOCTYPE html><html><head><meta charset=\"utf-8\"><title>%1</title><style>body{font:15px "
           "sans-serif;margin:24px}figure{display:inline-block;width:150px;margin:0 16px 16px 0;"
           "vertical-align:top}img{width:150px}</style></head><body><h1>%1</h1>\n<p>%2</p>\n%3</body></html>\n"_s
               .arg(shown.isEmpty() ? u"Covers"_s : shown,
                    count == 0 ? u"The sample service has no cover of that name."_s
                               : u"%1 of the sample service's covers."_s.arg(count),
                    found)
               .toUtf8();
}

QByteArray Site::idList() const
{
    // The list is a plain text of the 8-bit code page, as its readers expect.
    QStringEncoder encode("windows-1252");
    QByteArray list;
    for (const SampleTitle& title : m_titles) {
        QByteArray name = encode(title.name);
        list += title.id.toLatin1() + ' ' + name.replace('\x1a', '?') + "\r\n";
    }
    return list;
}

} // namespace varnhold::host
