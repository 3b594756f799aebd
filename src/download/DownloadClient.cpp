#include "download/DownloadClient.h"

#include "download/DownloadTexts.h"
#include "download/NumericValue.h"
#include "download/PhaseWords.h"
#include "platform/Clock.h"
#include "platform/MessageBoxes.h"
#include "platform/MessagePump.h"
#include "platform/RunTimeError.h"
#include "platform/Socket.h"
#include "state/ErrorReport.h"
#include "state/SizeText.h"
#include "state/WaitLoop.h"

#include <QPointer>

#include <array>
#include <limits>
#include <optional>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr int overwriteTries = 5;
constexpr quint32 displayInterval = 100; ///< milliseconds
constexpr QByteArrayView headerStart("HTTP");

/// Failures that handlers let pass without a word.
bool passesSilently(const RunTimeError& error)
{
    return error.number() == errors::objectNotSet || error.number() == errors::invalidCall ||
           error.number() == errors::none;
}

/// Text after the first `name`, whatever its case and wherever it stands, up to the line's end.
std::optional<QString> headerValue(const QString& header, const QString& name)
{
    const qsizetype at = header.indexOf(name, 0, Qt::CaseInsensitive);
    if (at < 0)
        return std::nullopt;
    const qsizetype start = at + name.size();
    const qsizetype end = header.indexOf(u"\r\n"_s, start);
    return header.mid(start, end < 0 ? -1 : end - start);
}

} // namespace

DownloadClient::DownloadClient(const Services& services, QObject* parent)
    : QObject(parent),
      m_services(services),
      m_socket(services.sockets.makeSocket(this)),
      m_file(services.files.makeFile())
{
    connect(m_socket, &Socket::connected, this, &DownloadClient::onConnected);
    connect(m_socket, &Socket::dataArrival, this, &DownloadClient::onDataArrival);
    connect(m_socket, &Socket::closed, this, &DownloadClient::onClosed);
    connect(m_socket, &Socket::error, this, &DownloadClient::onError);
}

DownloadClient::~DownloadClient()
{
    m_socket->close(); // before the file, into which a chunk may be on its way
}

void DownloadClient::setName(const QString& caption)
{
    m_labels.name = QString(caption).remove(u".pkg"_s);
    Q_EMIT labelsChanged();
}

void DownloadClient::setNameTag(const QString& path)
{
    m_labels.nameTag = path;
    Q_EMIT labelsChanged();
}

void DownloadClient::setNameToolTip(const QString& text)
{
    m_labels.nameToolTip = text;
    Q_EMIT labelsChanged();
}

void DownloadClient::setUrl(const QString& url)
{
    m_labels.url = url;
    Q_EMIT labelsChanged();
}

void DownloadClient::setPath(const QString& folder)
{
    m_labels.path = folder;
    Q_EMIT labelsChanged();
}

QString DownloadClient::openPath() const
{
    return m_file->isOpen() ? m_tempPath : QString();
}

QString DownloadClient::finalPath() const
{
    return QString(m_workPath).replace(u".temp"_s, u".pkg"_s);
}

void DownloadClient::Download1()
{
    m_workPath = m_labels.nameTag;
    if (!m_workPath.contains(u'/'))
        return;

    const QPointer<DownloadClient> alive(this);
    if (!overwrite() || !alive || m_unloaded)
        return;
    m_services.pump.pump();
    if (!alive || m_unloaded)
        return;

    m_workPath.replace(u".pkg"_s, u".temp"_s);
    m_tempPath = m_workPath;
    m_fileNumber = 1;
    silently([&] { m_file->open(m_tempPath); });
    m_markerPath = QString(m_workPath).replace(u".temp"_s, u".txt"_s);
    silently([&] { m_services.files.createEmpty(m_markerPath); });

    m_address = Split_Url(m_labels.url);
    if (numericValue(m_address.port) == 0) {
        exclaim(u"Error: The entered URL is not valid"_s);
        return;
    }
    m_bytesReceived = 0;
    connectToHost();
}

/// False when the target could not be deleted or the client's life ended meanwhile.
bool DownloadClient::overwrite()
{
    const QPointer<DownloadClient> alive(this);
    int tries = 0;
    while (m_services.files.exists(m_workPath)) {
        silently([&] { m_services.files.remove(m_workPath); });
        m_services.pump.pump();
        if (!alive || m_unloaded)
            return false;
        // Tells also of a file that went at the last try; meant.
        if (++tries == overwriteTries) {
            exclaim(u"Error: Unable to overwrite the File"_s);
            return false;
        }
    }
    return true;
}

void DownloadClient::connectToHost()
{
    m_socket->close();
    m_socket->connectTo(m_address.host, m_address.port);
}

void DownloadClient::onConnected()
{
    // The host goes without its port, and any character as one byte; both are meant.
    const QString request = u"GET "_s + m_address.path + u" HTTP/1.0\r\nHost: "_s + m_address.host +
                            u"\r\nConnection: close\r\nAccept: */*\r\nAccept-Encoding: binary\r\n\r\n"_s;
    m_startTick = m_services.clock.tickCount();
    if (m_socket->state() == Socket::State::Connected)
        m_socket->sendData(request.toLatin1());
}

void DownloadClient::onDataArrival(qint64 bytesTotal)
{
    if (bytesTotal == 0)
        return;
    if (m_fileNumber == 0) {
        m_socket->close();
        return;
    }
    // Asked of every chunk, so that a body's chunk which happens to begin so is taken for a header; meant.
    std::array<char, 4> start{};
    if (m_socket->peekData(start) == 4 && headerStart == QByteArrayView(start))
        ProcessHeader(m_socket->getData());
    else
        ProcessContent();
}

void DownloadClient::ProcessHeader(QByteArrayView chunk)
{
    // A header that comes in two pieces is not put together: this one is lost and the other is content.
    const qsizetype end = chunk.indexOf("\r\n\r\n");
    if (end < 0)
        return;
    const QByteArrayView headerBytes = chunk.first(end);
    const QString header = QString::fromLatin1(headerBytes);
    try {
        const QStringList words = header.section(u"\r\n"_s, 0, 0).split(u' ');
        if (words.size() < 2)
            throw RunTimeError(errors::subscript);
        const QString& status = words.at(1);
        if (status == "200"_L1) {
            processOk(header, chunk.sliced(end + 4));
        } else if (status == "302"_L1) {
            processRedirect(header);
        } else if (status == "404"_L1) {
            m_labels.percent = 0;
            closeFile();
            m_socket->close();
            Q_EMIT labelsChanged();
        } else {
            m_socket->close();
        }
    } catch (const RunTimeError& error) {
        endHeader(error);
    }
}

void DownloadClient::processOk(const QString& header, QByteArrayView body)
{
    const auto length = headerValue(header, u"Content-Length: "_s);
    m_fileSize = length ? roundToLong(numericValue(*length)) : -1;
    if (body.isEmpty())
        return;
    m_file->write(body);
    m_bytesReceived = roundToLong(static_cast<double>(body.size()));
}

void DownloadClient::processRedirect(const QString& header)
{
    const auto location = headerValue(header, u"Location: "_s);
    if (!location)
        return;
    m_address = Split_Url(*location);
    m_labels.percent = 0;
    const QPointer<DownloadClient> alive(this);
    Q_EMIT labelsChanged();
    if (!alive || m_unloaded)
        return;
    if (numericValue(m_address.port) != 0)
        connectToHost();
    else
        exclaim(u"Error: The new Location URL is not valid."_s);
}

/// The socket is closed before the box, since the box pumps events.
void DownloadClient::endHeader(const RunTimeError& error)
{
    MessageBoxes& boxes = m_services.boxes;
    m_labels.percent = 0;
    closeFile();
    m_socket->close();
    Q_EMIT labelsChanged();
    if (error.number() == errors::overflow) {
        boxes.show({u"This file is to large!\r\nPlease use another DL Mngr.\r\nErr Description: \t"_s +
                        error.description() + u"\r\n"_s,
                    u"ErrorException"_s, BoxIcon::Critical, BoxButtons::Ok});
    } else {
        reportError(boxes, error, DescriptionLabel::WithoutBlank);
    }
}

void DownloadClient::ProcessContent()
{
    try {
        m_file->appendFrom(*m_socket, headerStart.toByteArray(),
                           [this](const DownloadFile::Appended& appended) { onAppended(appended); });
    } catch (const RunTimeError& error) {
        failContent(error);
    }
}

void DownloadClient::onAppended(const DownloadFile::Appended& appended)
{
    try {
        if (appended.failure)
            throw RunTimeError(*appended.failure);
        const qint64 received = m_bytesReceived + appended.bytes;
        if (received > std::numeric_limits<qint32>::max())
            throw RunTimeError(errors::overflow);
        m_bytesReceived = static_cast<qint32>(received);
        ProcessStatus();
    } catch (const RunTimeError& error) {
        failContent(error);
    }
}

void DownloadClient::failContent(const RunTimeError& error)
{
    if (passesSilently(error)) {
        // The chunk is lost, else it would come again.
        (void)m_socket->getData();
        return;
    }
    const QPointer<DownloadClient> alive(this);
    reportError(m_services.boxes, error, DescriptionLabel::WithoutBlank);
    if (alive && !m_unloaded)
        cmdCancel_Click();
}

void DownloadClient::ProcessStatus()
{
    const quint32 now = m_services.clock.tickCount();
    if (m_lastTick == 0)
        m_lastTick = now;
    if (now - m_lastTick < displayInterval)
        return;
    m_lastTick = now;

    // Each step on its own: one that fails leaves what stood there.
    qint32 speed = 0;
    qint32 remaining = 0;
    silently([&] { m_elapsedSeconds = roundToLong((now - m_startTick) / 1000.0); });
    silently([&] { speed = roundToLong(quotient(m_bytesReceived, m_elapsedSeconds)); });
    silently([&] { remaining = roundToLong(quotient(double(m_fileSize) - m_bytesReceived, speed)); });
    m_labels.fileSize = sizeWithBytes(m_fileSize);
    m_labels.loaded = sizeWithBytes(m_bytesReceived);
    m_labels.bytesR = kiloBytes(m_bytesReceived);
    m_labels.kBytes = kiloBytes(m_fileSize);
    m_labels.speed = Size_Text(speed) + u"/s"_s;
    m_labels.caption = u"Downloading - Remaining: "_s + timeOfDay(remaining) + u" - Elapsed: "_s +
                       timeOfDay(m_elapsedSeconds);
    silently([&] {
        const double percent = quotient(m_bytesReceived, m_fileSize) * 100;
        m_labels.done = wholeNumber(percent) + u'%';
        m_labels.percent = roundToLong(percent);
    });
    Q_EMIT labelsChanged();
}

void DownloadClient::onClosed()
{
    closeFile();
    m_socket->close();
    FinishStatus();
}

void DownloadClient::FinishStatus()
{
    m_labels.loaded = sizeWithBytes(m_bytesReceived);
    m_labels.bytesR.clear();
    m_labels.kBytes.clear();
    m_labels.speed.clear();
    m_labels.percent = 0;
    m_labels.caption = u"Download Finished - Elapsed: "_s + timeOfDay(m_elapsedSeconds);
    m_labels.cancelEnabled = false;
    const QPointer<DownloadClient> alive(this);
    Q_EMIT labelsChanged();
    if (!alive || m_unloaded)
        return;
    const bool moved = reporting(m_services.boxes, DescriptionLabel::WithoutBlank, [&] {
        if (m_services.files.exists(finalPath()))
            m_services.files.remove(finalPath());
        m_services.files.rename(m_workPath, finalPath());
    });
    if (moved)
        waitAndUnload();
}

void DownloadClient::cmdCancel_Click()
{
    if (!m_labels.cancelEnabled || m_unloaded)
        return;
    m_socket->close();
    m_labels.fileSize.clear();
    m_labels.loaded.clear();
    m_labels.bytesR.clear();
    m_labels.kBytes.clear();
    m_labels.speed.clear();
    m_labels.percent = 0;
    m_labels.caption = u"Download Cancelled ..."_s;
    m_file->close(); // m_fileNumber keeps its value
    const QPointer<DownloadClient> alive(this);
    Q_EMIT labelsChanged();
    if (!alive || m_unloaded)
        return;
    try {
        m_services.files.remove(m_tempPath);
        m_services.files.remove(m_markerPath);
    } catch (const RunTimeError& error) {
        if (!passesSilently(error))
            m_services.boxes.show({QString::number(error.number()) + u' ' + error.description(),
                                   m_services.applicationTitle, BoxIcon::Critical, BoxButtons::Ok});
        return;
    }
    m_labels.cancelEnabled = false;
    Q_EMIT labelsChanged();
    if (alive && !m_unloaded)
        waitAndUnload();
}

void DownloadClient::btnExit_Click()
{
    m_socket->close();
    m_file->close();
    unload();
}

void DownloadClient::lblName_Click()
{
    m_services.boxes.show({m_workPath, m_labels.name, BoxIcon::Information, BoxButtons::Ok});
}

void DownloadClient::onError(int number, const QString& description)
{
    m_services.boxes.show({description, errorWord.toString() + u' ' + QString::number(number),
                           BoxIcon::Critical, BoxButtons::Ok});
}

void DownloadClient::closeFile()
{
    m_file->close();
    m_fileNumber = 0;
}

void DownloadClient::waitAndUnload()
{
    const QPointer<DownloadClient> alive(this);
    Wait_Loop(0.6, m_services.pump);
    if (alive)
        unload();
}

void DownloadClient::unload()
{
    if (m_unloaded)
        return;
    m_unloaded = true;
    Q_EMIT unloadRequested();
}

void DownloadClient::exclaim(const QString& text)
{
    m_services.boxes.show({text, errorWord.toString(), BoxIcon::Exclamation, BoxButtons::Ok});
}

} // namespace varnhold
