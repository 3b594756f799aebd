#include "state/Hosts.h"

#include "platform/Conversion.h"
#include "platform/IniFile.h"
#include "platform/ReadFile.h"
#include "platform/RunTimeError.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

#include <algorithm>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr int longestValue = 4096;

class Reader
{
public:
    explicit Reader(const QString& path) : m_ini(path) {}

    [[nodiscard]] bool saysSample() const;

    /// `prefix`: what stands before the words "Host", "CA" and "Old TLS" in this section's keys.
    [[nodiscard]] HostEntry entry(const QString& section, const QString& hostKey,
                                  const QString& prefix) const;

private:
    [[nodiscard]] QString read(const QString& section, const QString& key) const
    {
        return m_ini.read(section, key, {}, longestValue);
    }
    [[noreturn]] void refuse(const QString& section, const QString& key, const QString& why) const
    {
        throw RunTimeError(errors::invalidCall,
                           u"%1: [%2] %3: %4"_s.arg(QFileInfo(m_ini.path()).fileName(), section, key, why));
    }

    IniFile m_ini;
};

bool Reader::saysSample() const
{
    const QString use = read(u"Hosts"_s, u"Use"_s);
    if (use.compare(u"sample"_s, Qt::CaseInsensitive) == 0)
        return true;
    if (!use.isEmpty() && use.compare(u"these"_s, Qt::CaseInsensitive) != 0)
        refuse(u"Hosts"_s, u"Use"_s, u"\"%1\" is neither \"sample\" nor \"these\"."_s.arg(use));
    return false;
}

bool isAuthority(const QString& text)
{
    const QUrl url(u"http://"_s + text + u'/', QUrl::StrictMode);
    return url.isValid() && !url.host().isEmpty() && url.userInfo().isEmpty() && url.path() == u"/" &&
           !url.hasQuery() && !url.hasFragment() && url.port(1) != 0;
}

HostEntry Reader::entry(const QString& section, const QString& hostKey, const QString& prefix) const
{
    HostEntry entry;
    entry.authority = read(section, hostKey);
    if (!entry.authority.isEmpty() && !isAuthority(entry.authority))
        refuse(section, hostKey,
               u"\"%1\" is no host; write a name or address, with \":\" and a port if need be."_s.arg(
                   entry.authority));
    const QString certificate = read(section, prefix + u"CA"_s);
    if (!certificate.isEmpty()) // from the file's own folder, unless it is a full path
        entry.certificateFile = QFileInfo(m_ini.path()).absoluteDir().absoluteFilePath(certificate);
    const QString oldTls = read(section, prefix + u"Old TLS"_s);
    try {
        entry.allowsOldTls = !oldTls.isEmpty() && booleanFromText(oldTls);
    } catch (const RunTimeError&) {
        refuse(section, prefix + u"Old TLS"_s, u"\"%1\" is neither 0 nor 1."_s.arg(oldTls));
    }
    return entry;
}

} // namespace

Hosts readHosts(const QString& path)
{
    Hosts hosts;
    try {
        readFile(path, IniFile::largestFile);
    } catch (const RunTimeError& error) {
        if (error.number() != errors::fileNotFound && error.number() != errors::pathNotFound)
            throw RunTimeError(errors::pathFileAccess, u"The file cannot be read: "_s + path);
        hosts.sample = true;
        return hosts;
    }

    const Reader reader(path);
    hosts.sample = reader.saysSample();
    if (hosts.sample)
        return hosts;
    for (std::size_t i = 0; i < hosts.servers.size(); ++i) {
        const QString number = QString::number(i + 1);
        hosts.servers.at(i) = reader.entry(u"Servers"_s, number, number + u' ');
    }
    hosts.update = reader.entry(u"Update"_s, u"Host"_s, {});
    if (!hosts.update.authority.isEmpty() && QUrl(u"http://"_s + hosts.update.authority).port() < 0)
        hosts.update.authority += u":6969"_s;
    hosts.imageSearch = reader.entry(u"ImageSearch"_s, u"Host"_s, {});
    hosts.forum = reader.entry(u"Forum"_s, u"Host"_s, {});
    return hosts;
}

const HostEntry* findHost(const Hosts& hosts, const QString& authority)
{
    const auto matches = [&](const HostEntry& entry) {
        return !entry.authority.isEmpty() && entry.authority.compare(authority, Qt::CaseInsensitive) == 0;
    };
    const auto server = std::ranges::find_if(hosts.servers, matches);
    if (server != hosts.servers.end())
        return &*server;
    for (const HostEntry* entry : {&hosts.update, &hosts.imageSearch, &hosts.forum})
        if (matches(*entry))
            return entry;
    return nullptr;
}

} // namespace varnhold
