#include "platform/SampleServiceProcess.h"

#include "platform/RunTimeError.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr int startMilliseconds = 10000;
constexpr int endMilliseconds = 2000;

QString authorityOf(const QJsonValue& port)
{
    return u"127.0.0.1:"_s + QString::number(port.toInt());
}

[[noreturn]] void refuse(const QString& why)
{
    throw RunTimeError(errors::pathFileAccess, u"The sample service did not start: "_s + why);
}

} // namespace

SampleServiceProcess::SampleServiceProcess(QObject* parent) : QObject(parent), m_process(new QProcess(this))
{
}

SampleServiceProcess::~SampleServiceProcess()
{
    if (!isRunning())
        return;
    m_process->terminate();
    if (!m_process->waitForFinished(endMilliseconds)) {
        m_process->kill();
        m_process->waitForFinished(endMilliseconds);
    }
}

QString SampleServiceProcess::findProgram()
{
    const QString name = u"varnhold-host"_s;
    const QString folder = QCoreApplication::applicationDirPath();
    const QString found = QStandardPaths::findExecutable(name, {folder, folder + u"/../libexec/varnhold"_s});
    return found.isEmpty() ? QStandardPaths::findExecutable(name) : found;
}

SampleServiceAddress SampleServiceProcess::start(const QString& program)
{
    if (program.isEmpty())
        throw RunTimeError(errors::fileNotFound,
                           u"The sample service, varnhold-host, is not installed beside the program."_s);
    // Either of the two ends the child when this process dies: the kernel's signal is sure, and the end of
    // its input works even where a debugger stands between the two.
    m_process->start(
        program, {u"--end-with-stdin"_s, u"--parent"_s, QString::number(QCoreApplication::applicationPid())});
    const QDeadlineTimer deadline(startMilliseconds);
    while (!m_process->canReadLine()) {
        if (m_process->state() == QProcess::NotRunning) {
            const QString said = QString::fromUtf8(m_process->readAllStandardError()).trimmed();
            refuse(said.isEmpty() ? m_process->errorString() : said);
        }
        if (!m_process->waitForReadyRead(static_cast<int>(deadline.remainingTime())) &&
            deadline.hasExpired()) {
            m_process->kill();
            refuse(u"it said nothing for %1 seconds."_s.arg(startMilliseconds / 1000));
        }
    }
    const QJsonObject line = QJsonDocument::fromJson(m_process->readLine()).object();
    const SampleServiceAddress address{authorityOf(line.value("http"_L1)),
                                       authorityOf(line.value("https"_L1)), line.value("ca"_L1).toString()};
    if (line.value("http"_L1).toInt() == 0 || line.value("https"_L1).toInt() == 0 ||
        !QFileInfo::exists(address.caFile)) {
        m_process->kill();
        refuse(u"%1 is some other program."_s.arg(program));
    }
    return address;
}

bool SampleServiceProcess::isRunning() const
{
    return m_process->state() != QProcess::NotRunning;
}

} // namespace varnhold
