#pragma once

#include <QObject>
#include <QString>

class QProcess;

namespace varnhold {

/// Where a running sample service answers.
struct SampleServiceAddress
{
    QString httpAuthority;  ///< "127.0.0.1:port"
    QString httpsAuthority; ///< "127.0.0.1:port"
    QString caFile;         ///< PEM file of the authority that its certificate comes from
};

/// Runs `varnhold-host` as a child on free loopback ports and ends it with itself. The child ends with this
/// process however that ends; and with the thread that started it, so start it from one that stays.
class SampleServiceProcess : public QObject
{
    Q_OBJECT

public:
    explicit SampleServiceProcess(QObject* parent = nullptr);
    ~SampleServiceProcess() override;

    /// The service's program: beside the running executable, else in ../libexec/varnhold from there, else in
    /// PATH. Empty when it is nowhere.
    static QString findProgram();

    /// Starts the program and waits for its ports, at most ten seconds, without running events. Throws
    /// RunTimeError 53 when there is no such program, 75 with a sentence when it does not come up.
    SampleServiceAddress start(const QString& program = findProgram());
    [[nodiscard]] bool isRunning() const;

private:
    QProcess* m_process;
};

} // namespace varnhold
