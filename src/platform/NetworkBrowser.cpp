#include "platform/NetworkBrowser.h"

#include "platform/NavigationCodes.h"
#include "platform/XmlTreeText.h"

#include <QPointer>

#include <algorithm>
#include <limits>
#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

int bounded(qint64 value)
{
    return static_cast<int>(std::clamp<qint64>(value, 0, std::numeric_limits<int>::max()));
}

} // namespace

NetworkBrowser::NetworkBrowser(SecurityAlert& alert, TlsPolicy policy, QObject* parent,
                               const HttpWalkLimits& limits)
    : BrowserControl(parent), m_alert(alert), m_limits(limits), m_walk(std::move(policy))
{
    connect(&m_walk, &HttpWalk::connecting, this, [this](const QString& authority) {
        Q_EMIT statusTextChanged(u"Connecting to "_s + authority + u"..."_s);
    });
    connect(&m_walk, &HttpWalk::headCame, this, &NetworkBrowser::onHead);
    connect(&m_walk, &HttpWalk::bodyCame, this, &NetworkBrowser::onBody);
    connect(&m_walk, &HttpWalk::completed, this, [this] {
        show(xmlTreeText(std::exchange(m_document, {})).value_or(u"The XML page cannot be displayed"_s));
    });
    connect(&m_walk, &HttpWalk::certificateRefused, this, &NetworkBrowser::onRefused);
    connect(&m_walk, &HttpWalk::failed, this, &NetworkBrowser::fail);
}

NetworkBrowser::~NetworkBrowser()
{
    stop();
}

void NetworkBrowser::later(std::function<void()> action)
{
    QMetaObject::invokeMethod(
        this,
        [this, page = m_page, action = std::move(action)] {
            if (page == m_page)
                action();
        },
        Qt::QueuedConnection);
}

void NetworkBrowser::stop()
{
    ++m_page;
    m_walk.stop();
    m_document.clear();
    if (std::exchange(m_asking, false))
        m_alert.cancel();
}

void NetworkBrowser::navigate(const QString& url)
{
    stop();
    m_busy = true;
    m_text.reset();
    if (url.trimmed().compare(u"about:blank"_s, Qt::CaseInsensitive) == 0)
        later([this] { show(u""_s); });
    else
        m_walk.start(url, m_limits);
}

void NetworkBrowser::onHead()
{
    if (m_walk.status() == navigation::notFound) {
        fail(navigation::notFound);
        return;
    }
    const quint64 page = m_page;
    Q_EMIT statusTextChanged(u"Downloading "_s + m_walk.address() + u"..."_s);
    if (page == m_page)
        Q_EMIT progressChanged(0, bounded(m_walk.bodyLength()));
}

void NetworkBrowser::onBody(const QByteArray& piece)
{
    m_document += piece;
    Q_EMIT progressChanged(bounded(m_walk.bodyReceived()), bounded(m_walk.bodyLength()));
}

void NetworkBrowser::onRefused(const QString& authority, const QStringList& problems)
{
    m_asking = true;
    const quint64 page = m_page;
    const QPointer<NetworkBrowser> self(this);
    const bool yes = m_alert.accept(authority, problems);
    // Anything may have happened while the question was open.
    if (self.isNull() || page != m_page)
        return;
    m_asking = false;
    if (yes)
        m_walk.acceptCertificate();
    else
        fail(navigation::securityProblem);
}

void NetworkBrowser::show(const QString& text)
{
    m_text = text;
    m_busy = false;
    const quint64 page = m_page;
    Q_EMIT progressChanged(-1, 0);
    if (page == m_page)
        Q_EMIT statusTextChanged(u"Done"_s);
}

void NetworkBrowser::fail(int code)
{
    stop();
    m_busy = false;
    const quint64 page = m_page;
    Q_EMIT progressChanged(0, 0); // a page that fails half-way leaves no bar behind
    if (page == m_page)
        Q_EMIT navigateError(code);
}

} // namespace varnhold
