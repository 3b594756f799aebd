#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QProcess>

namespace varnhold::test {

struct Ran
{
    int code = -1;
    QByteArray out;
    QByteArray err;
};

/// The built program, as a script would run it.
inline Ran run(const QStringList& arguments, const QString& workingFolder = QDir::tempPath())
{
    QProcess process;
    process.setWorkingDirectory(workingFolder);
    process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/varnhold-cli"), arguments);
    if (!process.waitForFinished(60000))
        return {};
    Ran ran{process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput(), process.readAllStandardError()};
    return ran;
}

} // namespace varnhold::test
